#include "Conversions.h"

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/Clone.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Channels/MetadataValues.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/HaveEqualContent.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/InspectDocument.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Mirror.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/ReadText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/WriteUpdate.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/WholeReading.h>

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <sstream>
#include <string>

namespace
{

std::atomic<long> live{0};     // blocks that have not been given back
std::atomic<long> failing{-1}; // allocations until one fails; negative: none does

bool Fails()
{
    return failing >= 0 && failing-- == 0;
}

} // namespace

// Those for arrays call these.
void* operator new(std::size_t size)
{
    void* const block = Fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (block == nullptr)
        throw std::bad_alloc();
    ++live;
    return block;
}
void operator delete(void* block) noexcept
{
    live -= block != nullptr ? 1 : 0;
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}

#ifdef QIV_REPLACES_MALLOC
// Where jsoncpp and the Stringer have memory from.
extern "C" void* malloc(std::size_t size) noexcept
{
    static const auto next = reinterpret_cast<void* (*)(std::size_t)>(dlsym(RTLD_NEXT, "malloc"));
    return Fails() ? nullptr : next(size);
}
extern "C" void* realloc(void* block, std::size_t size) noexcept
{
    static const auto next = reinterpret_cast<void* (*)(void*, std::size_t)>(dlsym(RTLD_NEXT, "realloc"));
    return Fails() ? nullptr : next(block, size);
}
#endif

namespace Qiv::Tests
{

using namespace DataModel::Tarvonel::Serialization::Json;
using namespace DataModel::Tarvonel::Serialization::Json::Channels;
using namespace DataModel::Tarvonel::Serialization::Json::Documents;
using namespace DataModel::Tarvonel::Serialization::Json::Updates;
using DataModel::Tarvonel::Serialization::Json::Mirrors::Mirror;

namespace
{

// The document of a player with something else in one place.
std::string With(const std::string& replacement, const std::string& replaced)
{
    auto text = fullOutput;
    return text.replace(text.find(replaced), replaced.size(), replacement);
}
std::string LongMetadata()
{
    std::string metadata;
    for (int i = 0; i < 100; ++i)
        metadata += "\"x." + std::to_string(i) + R"(":"beyond any buffer on the stack\n",)";
    return metadata;
}
const auto text = With(R"("unknown":0,"metadata":{)" + LongMetadata(), R"("metadata":{)");
const auto failingText = With("{}", R"({"_type":"Speed","numerator":-3,"denominator":2})");
const auto fatalText = With(R"("value":"x")", R"("value":"0")");
const auto json = Parse(text), failingJson = Parse(failingText), nodeJson = Parse(fullNode);
const auto player = FromText<MediaOutput>(text);

/// What operations work on, and leave what they come to in.
struct Subject
{
    MediaOutput channel =
        FromText<MediaOutput>(R"({"_type":"MediaOutput","id":"c2","name":"old","metadata":{"a.b":"0"}})");
    JsonObject parsed = "old";
    Mirror mirror;
    std::string output = std::string(1000, ' '); // with room for what is noted

    Subject() { static_cast<void>(mirror.Apply(Written(channel))); }
    std::string State() const
    {
        std::ostringstream state;
        mirror.WriteAll(state);
        return state.str() + Written(channel) + parsed.toStyledString() + output;
    }
    void Note(const TextResult& result) { output = result.Sentence(); }
    void Note(const Result& result) { output = result.ErrorMessage(); }
};

struct Operation
{
    const char* name;
    void (*run)(Subject&);
    bool mayMix = false; // a part of it may be done when memory runs out
};

const Operation operations[] = {
    {"ParseText", [](Subject& s) { s.Note(ParseText(text, s.parsed)); }},
    {"ParseText of no JSON", [](Subject& s) { s.Note(ParseText(text + "]", s.parsed)); }},
    {"MergeText", [](Subject& s) { s.Note(MergeText(text, s.channel)); }, true},
    {"MergeText of what fails", [](Subject& s) { s.Note(MergeText(failingText, s.channel)); }},
    {"MergeText of what ends the process", [](Subject& s) { s.Note(MergeText(fatalText, s.channel)); }},
    {"ReadSnapshotText", [](Subject& s) { s.Note(ReadSnapshotText(text, s.channel)); }, true},
    {"MergeWhole", [](Subject& s) { s.Note(MergeWhole(json, s.channel)); }, true},
    {"ReadSnapshot", [](Subject& s) { s.Note(ReadSnapshot(json, s.channel)); }, true},
    {"JsonToMediaIOConverter",
     [](Subject& s) { s.Note(JsonToMediaIOConverter().To(json, static_cast<MediaIO&>(s.channel))); }, true},
    {"InspectDocument", [](Subject& s) { s.output = InspectDocument(failingJson).front().sentence; }},
    {"ReadAny", [](Subject& s) { s.output = ToText(ReadAny(json).Entity()); }},
    {"ReadAnyText", [](Subject& s) { s.output = ToText(ReadAnyText(fullNode).Entity()); }},
    {"ToText", [](Subject& s) { s.output = ToText(player, Layout::Pretty); }},
    {"Clone", [](Subject& s) { s.output = Written(*Clone(s.channel)); }},
    {"IndependentCopy", [](Subject& s) { s.output = Written(IndependentCopy(s.channel)); }},
    {"HaveEqualContent", [](Subject& s) { s.output = HaveEqualContent(s.channel, s.channel) ? "equal" : "different"; }},
    {"MetadataValues", [](Subject& s) { s.output = MetadataValues(s.channel.Metadata()).front().second; }},
    {"MetadataValue", [](Subject& s) { s.output = *MetadataValue(s.channel.Metadata(), "a.b"); }},
    {"SetMetadataValue", [](Subject& s) { SetMetadataValue(s.channel.Metadata(), "a.b", std::string(40, 'v')); }},
    {"SetMetadataValue of a new key", [](Subject& s) { SetMetadataValue(s.channel.Metadata(), "new.k", text); }},
    {"WriteUpdate",
     [](Subject& s)
     {
         Stringer stringer;
         s.output = WriteUpdate(s.channel, player, stringer) ? stringer.ToString() : "refused";
     }},
    {"Mirror::Apply", [](Subject& s) { s.Note(s.mirror.Apply(text)); }, true},
    {"Mirror::Apply of a new node", [](Subject& s) { s.Note(s.mirror.Apply(nodeJson)); }},
    {"Mirror::ApplySnapshot", [](Subject& s) { s.Note(s.mirror.ApplySnapshot(json)); }, true},
    {"Mirror::ReadAll",
     [](Subject& s)
     {
         std::istringstream stream(fullInput + "\n" + text);
         stream.exceptions(std::ios::badbit); // otherwise streams keep it to themselves
         s.output = std::to_string(s.mirror.ReadAll(stream).refused);
     },
     true},
    {"Mirror::WriteAll",
     [](Subject& s)
     {
         std::ostringstream stream;
         stream.exceptions(std::ios::badbit);
         s.mirror.WriteAll(stream);
         s.output = stream.str();
     }},
};

TEST(AllocationFailure, ReachesTheCallerLeaksNothingAndLeavesTargetsAsTheyWere)
{
    for (const auto& operation : operations)
    {
        SCOPED_TRACE(operation.name);
        Subject whole;
        const auto before = whole.State();
        operation.run(whole); // makes what lives as long as the process, too
        const auto after = whole.State();
        bool isReached = true;
        for (long n = 0; isReached; ++n)
        {
            const long liveBefore = live;
            {
                Subject subject;
                bool hasThrown = false;
                failing = n;
                try
                {
                    operation.run(subject);
                }
                catch (const std::bad_alloc&)
                {
                    hasThrown = true;
                }
                isReached = failing.exchange(-1) < 0;
                const auto expected = !hasThrown ? after : operation.mayMix ? subject.State() : before;
                EXPECT_EQ(subject.State(), expected) << n;
                if (hasThrown)
                    operation.run(subject);
                EXPECT_EQ(subject.State(), after) << n;
            }
            EXPECT_EQ(live, liveBefore) << n;
        }
    }
}

} // namespace
} // namespace Qiv::Tests
