#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ReadAny.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/WriteUpdate.h>

#include "CaseFiles.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace Qiv::Tests
{
namespace
{

using namespace DataModel::Tarvonel::Serialization::Json::Documents;
using namespace DataModel::Tarvonel::Serialization::Json::Updates;
using Common::Serialization::Json::Stringer;

void CheckUpdate(const Case& each)
{
    const auto before = ReadAnyText(each.JsonText("before")).Entity();
    const auto after = ReadAnyText(each.JsonText("after")).Entity();
    Stringer stringer;
    const auto result = WriteUpdate(*ChannelOf(before), *ChannelOf(after), stringer);
    EXPECT_EQ(stringer.ToString(), each.Has("update") ? each.JsonText("update") : "");
    EXPECT_EQ(result.ErrorMessage(), each.Text("message"));

    using Omissions = std::vector<std::pair<std::string, std::string>>;
    Omissions expected;
    Omissions actual;
    for (const auto& omission : each.Has("omissions") ? each["omissions"] : Json::Value())
        expected.emplace_back(omission[0].asString(), omission[1].asString());
    for (const auto& omission : result.Omissions())
        actual.emplace_back(omission.pointer, omission.sentence);
    EXPECT_EQ(actual, expected);
}

[[maybe_unused]] const bool areRegistered = RegisterCases("updates/WriteUpdate.json", CheckUpdate);

} // namespace
} // namespace Qiv::Tests
