#include <Qiv/DataModel/Tarvonel/Serialization/MediaIOs/Json/JsonToSpeedConverter.h>

#include <Qiv/Common/Serialization/Json/KnownMembers.h>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
{

using namespace Common::Serialization::Json;
using Tarvonel::MediaIOs::Speed;

namespace
{

struct Keys
{
    enum class Index
    {
        Type,
        Denominator,
        Numerator
    };
    static constexpr std::array<std::string_view, 3> names{"_type", "denominator", "numerator"};
};
using Key = Keys::Index;

} // namespace

JsonToSpeedConverter::~JsonToSpeedConverter() = default;

Result JsonToSpeedConverter::To(const JsonObject& json, Speed& speed) const noexcept
{
    const KnownMembers<Keys> members(json);
    if (members.IsEmpty())
        return "Speed is empty";
    if (auto result = CheckType(members.Text(Key::Type), "Speed"); !result)
        return result;

    const auto numerator = members.Int(Key::Numerator);
    const auto denominator = members.Int(Key::Denominator);
    // The denominator is read as a signed number on purpose, as the writer writes it: -1 stands for 2^32 - 1.
    speed = Speed(numerator.value_or(speed.Numerator()),
                  denominator ? static_cast<std::uint32_t>(*denominator) : speed.Denominator());
    return {};
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json
