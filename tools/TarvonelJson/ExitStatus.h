#pragma once

namespace TarvonelJson
{

/// How the program ends, the same for all commands. Of several documents the worst counts.
enum class ExitStatus
{
    Success = 0,
    Findings = 1, ///< a document was refused, or check found something at the level or above it
    Trouble = 2,  ///< wrong usage, something unreadable, unwritable or no JSON
};

} // namespace TarvonelJson
