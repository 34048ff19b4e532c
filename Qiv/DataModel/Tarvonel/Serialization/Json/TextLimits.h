#pragma once

#include <cstddef>

namespace Qiv::DataModel::Tarvonel::Serialization::Json
{

/// What a text may demand of the program that reads it. A text beyond a limit is refused with a message that names the
/// limit and its value.
///
///     TextLimits limits;
///     limits.bytes = 1 << 20; // a document a connection, one megabyte at most
///
/// Memory while reading is at most ten times the text, besides some kilobytes, what is made of it, and what `findings`
/// and `refuse` of `ReadOptions` ask for: up to `mostFindings`, which have a few hundred bytes each.
struct TextLimits
{
    /// Bytes of the text, at most 2147483647 whatever is set.
    std::size_t bytes = 64U << 20U;
    /// How many objects and arrays may stand inside each other, the document itself counted as one; at most 1000
    /// whatever is set, since each takes some of the stack.
    std::size_t depth = 100;
    /// Objects, arrays, texts, numbers, true, false and null altogether; keys are not counted.
    std::size_t values = 16'000'000;
};

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json
