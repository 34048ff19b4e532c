// Time codes and durations, the library beside what the standard library offers for the same work.

#include <Qiv/TimePoints/QivDurationParser.h>
#include <Qiv/TimePoints/QivTimeCodeFormatter.h>
#include <Qiv/TimePoints/QivTimeCodeParser.h>
#include <Qiv/TimePoints/TimeCodeBuilder.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <regex>
#include <sstream>
#include <string>

namespace
{

using namespace Qiv::TimePoints;
using benchmark::DoNotOptimize;
using benchmark::State;

const char* const timeCodeText = "2016-03-21T14:05:09:17@25";
const char* const durationText = "3600000000000";

const std::regex& TimeCodeExpression()
{
    static const std::regex expression(
        R"(^([1-9]\d\d\d)-([0-1]\d)-([0-3]\d)T([0-2]\d):([0-5]\d):([0-5]\d)(:|;)(\d\d)@(\d+)$)");
    return expression;
}

TimeCode ParseByExpression(const std::string& text)
{
    std::smatch match;
    if (!std::regex_search(text, match, TimeCodeExpression()))
        return TimeCode::Empty();
    const auto number = [&](std::size_t group) { return std::stoi(match[group]); };
    return TimeCodeBuilder()
        .Date(number(1), number(2), number(3))
        .ClockTime(number(4), number(5), number(6), number(8))
        .Rate(Rate(number(9)))
        .IsDrop(match[7] == ";")
        .HasDate(true)
        .Build();
}

void ParseLibrary(State& state)
{
    const QivTimeCodeParser parser;
    const std::string text = timeCodeText;
    for (auto _ : state)
        DoNotOptimize(parser.Parse(text));
}

void ParseRegex(State& state)
{
    const std::string text = timeCodeText;
    for (auto _ : state)
        DoNotOptimize(ParseByExpression(text));
}

void CheckAndParseLibrary(State& state)
{
    const QivTimeCodeParser parser;
    const std::string text = timeCodeText;
    for (auto _ : state)
    {
        if (parser.IsStringFormatValid(text))
            DoNotOptimize(parser.Parse(text));
    }
}

void CheckAndParseRegex(State& state)
{
    const std::string text = timeCodeText;
    for (auto _ : state)
    {
        if (std::regex_search(text, TimeCodeExpression()))
            DoNotOptimize(ParseByExpression(text));
    }
}

void FormatLibrary(State& state)
{
    const auto timeCode = QivTimeCodeParser().Parse(timeCodeText);
    const QivTimeCodeFormatter formatter;
    for (auto _ : state)
        DoNotOptimize(formatter.Format(timeCode));
}

void FormatPrintf(State& state)
{
    const auto timeCode = QivTimeCodeParser().Parse(timeCodeText);
    for (auto _ : state)
    {
        char text[64];
        std::snprintf(text, sizeof text, "%d-%02d-%02dT%02d:%02d:%02d%c%02d@%lld", timeCode.Year(), timeCode.Month(),
                      timeCode.Day(), timeCode.Hour(), timeCode.Minute(), timeCode.Second(),
                      timeCode.IsDrop() ? ';' : ':', timeCode.Sample(),
                      static_cast<long long>(timeCode.Rate().Numerator()));
        DoNotOptimize(std::string(text));
    }
}

void DurationLibrary(State& state)
{
    const QivDurationParser parser;
    const std::string text = durationText;
    for (auto _ : state)
    {
        if (parser.IsStringFormatValid(text))
            DoNotOptimize(parser.Parse(text));
    }
}

void DurationRegex(State& state)
{
    static const std::regex expression("(\\+|-)?[[:digit:]]+");
    const std::string text = durationText;
    for (auto _ : state)
    {
        if (!std::regex_match(text, expression))
            continue;
        std::istringstream stream(text);
        unsigned long long nanoseconds = 0;
        stream >> nanoseconds;
        DoNotOptimize(nanoseconds);
    }
}

BENCHMARK(ParseLibrary)->Name("time codes: parse|library");
BENCHMARK(ParseRegex)->Name("time codes: parse|std::regex");
BENCHMARK(CheckAndParseLibrary)->Name("time codes: check and parse|library");
BENCHMARK(CheckAndParseRegex)->Name("time codes: check and parse|std::regex");
BENCHMARK(FormatLibrary)->Name("time codes: format|library");
BENCHMARK(FormatPrintf)->Name("time codes: format|snprintf");
BENCHMARK(DurationLibrary)->Name("time codes: duration, check and parse|library");
BENCHMARK(DurationRegex)->Name("time codes: duration, check and parse|std::regex");

} // namespace
