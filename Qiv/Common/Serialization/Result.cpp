#include <Qiv/Common/Serialization/Result.h>

namespace Qiv::Common::Serialization
{

Result::Result(const char* errorMessage)
    : errorMessage_(std::make_unique<const std::string>(errorMessage == nullptr ? "" : errorMessage))
{
}

Result::Result(const std::string& errorMessage) : errorMessage_(std::make_unique<const std::string>(errorMessage)) {}

Result::Result(const Result& other)
    : errorMessage_(other ? nullptr : std::make_unique<const std::string>(*other.errorMessage_))
{
}

Result& Result::operator=(const Result& other)
{
    return *this = Result(other);
}

} // namespace Qiv::Common::Serialization
