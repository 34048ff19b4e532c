#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/Details/Update.h>

#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Pointer.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Details/Utf8.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates::Details
{

void Update::Omit(std::initializer_list<std::string_view> path, std::string_view sentence)
{
    omissions.push_back({Json::Details::PointerTo(path), std::string(sentence)});
}

const char* ObstacleOfText(std::string_view text)
{
    const auto isPlain = [](char character) { return static_cast<unsigned char>(character - 1) < 0x7F; };
    while (!text.empty())
    {
        // Nearly all texts are of plain characters alone.
        const auto plain = std::find_if_not(text.begin(), text.end(), isPlain);
        text.remove_prefix(static_cast<std::size_t>(plain - text.begin()));
        if (text.empty())
            break;
        if (text.front() == '\0')
            return "the text has a NUL, at which writers cut it";
        const auto size = Json::Details::FirstCharacter(text).size;
        if (size == 0)
            return "the text is not well-formed UTF-8, so that writers change it";
        text.remove_prefix(size);
    }
    return nullptr;
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Updates::Details
