#include <Qiv/BusinessEntityModel/BaseTypes/Identifier.h>

#include <array>

#include <cstdint>
#include <random>
#include <string_view>

namespace Qiv::BusinessEntityModel::BaseTypes
{

const Identifier& Identifier::Empty()
{
    // Never destroyed: entities with static storage may still ask for it while the process ends.
    static const Identifier& empty = *new Identifier();
    return empty;
}

Identifier Identifier::Generate()
{
    constexpr std::string_view form = "xxxxxxxx-xxxx-4xxx-yxxx-xxxxxxxxxxxx";
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr unsigned digitsPerDraw = 8; // a draw has 32 bits, a digit 4

    std::random_device source;
    std::uint32_t bits = 0;
    unsigned remainingDigits = 0;
    std::string text(form);
    for (char& place : text)
    {
        if (place != 'x' && place != 'y')
            continue;
        if (remainingDigits == 0)
        {
            bits = source();
            remainingDigits = digitsPerDraw;
        }
        const std::uint32_t digit = bits & 0xFu;
        bits >>= 4;
        --remainingDigits;
        place = digits[place == 'x' ? digit : (0x8u | (digit & 0x3u))]; // y: the variant bits 10
    }
    return Identifier(std::move(text));
}

} // namespace Qiv::BusinessEntityModel::BaseTypes
