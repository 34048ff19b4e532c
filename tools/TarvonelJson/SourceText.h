#pragma once

#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextLimits.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/TextPosition.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace TarvonelJson
{

/// The text of one document and where it comes from.
struct SourceText
{
    using Position = Qiv::DataModel::Tarvonel::Serialization::Json::TextPosition;

    std::string_view text;
    /// The file as messages name it.
    std::string file;
    /// The line of the file on which the text begins.
    std::size_t firstLine = 1;
    /// Whether it is a line of its file; otherwise it is the whole file.
    bool isLine = false;

    /// For reading it: its size has been judged by --max-bytes.
    static Qiv::DataModel::Tarvonel::Serialization::Json::TextLimits Limits();

    /// A place in the text as a place in the file.
    Position InFile(const Position& position) const { return {position.line + firstLine - 1, position.column}; }

    /// The beginning of a message: `server.json:3:14: /name: `, without the pointer when it is empty. Long names and
    /// pointers are cut.
    std::string MessageStart(const Position& position = {}, std::string_view pointer = {}) const;
};

} // namespace TarvonelJson
