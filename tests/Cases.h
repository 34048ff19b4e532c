#pragma once

#include <fstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// Cases that stand in files, one a line.
namespace Qiv::Tests
{

using Names = std::vector<std::pair<std::string, std::string>>;

inline std::string ReplacedAll(std::string text, const std::string& from, const std::string& to)
{
    for (auto position = text.find(from); position != std::string::npos;
         position = text.find(from, position + to.size()))
        text.replace(position, from.size(), to);
    return text;
}

inline std::vector<std::string> Split(const std::string& text, const std::string& separator)
{
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (auto end = text.find(separator); end != std::string::npos; end = text.find(separator, begin))
    {
        parts.push_back(text.substr(begin, end - begin));
        begin = end + separator.size();
    }
    parts.push_back(text.substr(begin));
    return parts;
}

/// The lines of a file in this folder, without empty ones and those that begin with #. A line "$NAME = TEXT" is none of
/// them: it adds a name to `names`, which stand for their texts in the lines after it.
inline std::vector<std::string> Lines(const std::string& file, Names& names)
{
    std::ifstream stream(QIV_TESTS_FOLDER "/" + file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
    {
        for (const auto& [name, text] : names)
            line = ReplacedAll(line, name, text);
        if (line.rfind('$', 0) == 0)
            names.emplace_back(Split(line, " = ").at(0), Split(line, " = ").at(1));
        else if (!line.empty() && line[0] != '#')
            lines.push_back(line);
    }
    if (!stream.eof())
        throw std::runtime_error("cannot read " + file);
    return lines;
}

inline std::vector<std::string> Lines(const std::string& file, Names&& names = {})
{
    return Lines(file, names);
}

} // namespace Qiv::Tests
