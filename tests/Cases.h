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

/// A text after the edits "OLD => NEW [;; OLD => NEW]...", where NEW may be NOTHING; or `edits` when they are none.
inline std::string Edited(std::string text, const std::string& edits)
{
    if (edits.find(" => ") == std::string::npos)
        return edits.empty() ? text : edits;
    for (const auto& edit : Split(edits, " ;; "))
    {
        const auto sides = Split(edit, " => ");
        const auto position = text.find(sides[0]);
        if (position == std::string::npos || text.find(sides[0], position + 1) != std::string::npos)
            throw std::runtime_error("not there just once: " + sides[0]);
        text.replace(position, sides[0].size(), sides.at(1) == "NOTHING" ? "" : sides.at(1));
    }
    return text;
}

/// The lines that a line stands for: with %<A|B|C> it is one for each of A, B and C, which %% repeats.
inline std::vector<std::string> Expanded(const std::string& line)
{
    const auto begin = line.find("%<");
    if (begin == std::string::npos)
        return {line};
    const auto end = line.find('>', begin);
    std::vector<std::string> lines;
    for (const auto& choice : Split(line.substr(begin + 2, end - begin - 2), "|"))
        for (const auto& each :
             Expanded(line.substr(0, begin) + choice + ReplacedAll(line.substr(end + 1), "%%", choice)))
            lines.push_back(each);
    return lines;
}

/// The lines of a file in this folder, without empty ones and those that begin with #. A line "$NAME = TEXT" is none of
/// them: it adds a name to `names`, which stand for their texts in the lines after it.
inline std::vector<std::string> Lines(const std::string& file, Names& names)
{
    std::ifstream stream(QIV_TESTS_FOLDER "/" + file);
    const auto namesBefore = names.size();
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
    {
        for (const auto& [name, text] : names)
            line = ReplacedAll(line, name, text);
        if (line.rfind('$', 0) == 0)
            names.emplace_back(Split(line, " = ").at(0), Split(line, " = ").at(1));
        else if (!line.empty() && line[0] != '#')
            for (const auto& each : Expanded(line))
                lines.push_back(each);
    }
    if (!stream.eof() || (lines.empty() && names.size() == namesBefore))
        throw std::runtime_error("cannot read, or nothing in " + file);
    return lines;
}

inline std::vector<std::string> Lines(const std::string& file, Names&& names = {})
{
    return Lines(file, names);
}

} // namespace Qiv::Tests
