#pragma once

#include "Conversions.h"

#include <cstdint>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace Qiv::Tests
{

/// Makes documents of the whole model by the rules of cases/model.txt, the same ones for the same seed: any part may be
/// absent or empty, texts hold quotes, control characters and UTF-8 of every length, numbers lie at their limits.
class ModelGenerator
{
public:
    explicit ModelGenerator(std::uint32_t seed) : random_(seed) {}

    /// A number below `limit`.
    std::uint32_t Below(std::size_t limit) { return static_cast<std::uint32_t>(random_() % limit); }

    /// What a rule gives, e.g. "MediaInput".
    std::string Document(const std::string& rule)
    {
        static const auto rules = Rules();
        const auto& alternatives = rules.at(rule);
        auto text = alternatives[Below(alternatives.size())];
        if (text == "NOTHING")
            return "";
        for (auto begin = text.find('<'); begin != std::string::npos; begin = text.find('<', begin))
        {
            const auto end = text.find('>', begin);
            const auto part = Document(text.substr(begin + 1, end - begin - 1));
            text.replace(begin, end + 1 - begin, part);
            begin += part.size();
        }
        return text;
    }

private:
    static std::map<std::string, std::vector<std::string>> Rules()
    {
        std::map<std::string, std::vector<std::string>> rules;
        std::istringstream lines(FileText("cases/model.txt"));
        for (std::string line; std::getline(lines, line);)
        {
            const std::string equals = " = ", bar = " | ";
            const auto name = line.find(equals);
            if (line[0] == '#' || name == std::string::npos)
                continue;
            line += bar;
            for (auto begin = name + equals.size(), end = line.find(bar); end != std::string::npos;
                 begin = end + bar.size(), end = line.find(bar, begin))
                rules[line.substr(0, name)].push_back(line.substr(begin, end - begin));
        }
        return rules;
    }

    std::mt19937 random_;
};

} // namespace Qiv::Tests
