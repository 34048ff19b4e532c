#pragma once

#include <exception>
#include <stdexcept>

namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
{

/// Returns what `read` returns, and ends the process where it throws for one of the two inputs that do so with the
/// kinds' own readers, which are declared not to throw. Other exceptions, as for memory that runs out, are let out.
template <typename Read>
auto EndingTheProcess(const Read& read)
{
    try
    {
        return read();
    }
    catch (const std::logic_error&)
    {
        std::terminate();
    }
    catch (const std::runtime_error&)
    {
        std::terminate();
    }
}

} // namespace Qiv::DataModel::Tarvonel::Serialization::MediaIOs::Json::Details
