#pragma once

#include <Qiv/Common/Serialization/Json/Stringer.h>
#include <Qiv/Common/Serialization/Result.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/Write.h>

#include <stdexcept>
#include <string>

namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
{

/// How a text is laid out.
enum class Layout
{
    Compact, ///< in one line without blanks
    Pretty,  ///< indented, in lines, without a line end at the end
};

/// The text of any entity that `Write` takes: a channel also by its base `MediaIO`, a boundary by `Boundary`, and
/// `AnyEntity`.
///
///     std::cout << ToText(channel, Layout::Pretty) << '\n';
///
/// Throws std::invalid_argument with the text of the writer when that fails.
template <typename Entity>
std::string ToText(const Entity& entity, Layout layout = Layout::Compact)
{
    using Common::Serialization::Json::Stringer;

    auto stringer = layout == Layout::Pretty ? Stringer::PrettyStringer() : Stringer();
    if (const auto result = Write(entity, stringer); !result)
        throw std::invalid_argument(result.ErrorMessage());
    return stringer.ToString();
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::Json::Documents
