#pragma once

#include <TarvonelJson/Level.h>
#include <TarvonelJson/SourceText.h>

#include <cstddef>
#include <string>
#include <vector>

namespace TarvonelJson
{

/// A finding as `check` prints it. That a text is no JSON and a document of no known kind are findings here.
struct CheckedFinding
{
    SourceText::Position position;
    std::string pointer;
    std::string kind;
    std::string sentence;
    std::string readerMessage;
    Level level = Level::Any;
    /// Where the value starts in the text.
    std::ptrdiff_t offset = 0;
};

/// What there is to say of a document, in the order of the places.
std::vector<CheckedFinding> CheckDocument(const SourceText& source);

/// `FILE:LINE:COLUMN: POINTER: SENTENCE`, a line for people.
std::string AsText(const SourceText& source, const CheckedFinding& finding, bool isColoured);

/// A JSON object in which nothing is cut.
std::string AsJson(const SourceText& source, const CheckedFinding& finding);

} // namespace TarvonelJson
