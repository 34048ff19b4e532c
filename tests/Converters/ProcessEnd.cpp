#include "Conversions.h"

#include <cstdio>

namespace
{

using namespace Qiv::Tests;

template <typename Reader, typename Writer, typename Entity>
bool Keeps(const std::string& text)
{
    return Written<Writer>(FromText<Reader, Entity>(text)) == text;
}

bool KeepsAll()
{
    return Keeps<JsonToMediaIOConverter, MediaIOToJsonConverter, MediaInput>(fullInput) &&
           Keeps<JsonToMediaIOConverter, MediaIOToJsonConverter, MediaOutput>(fullOutput) &&
           Keeps<JsonToNodeConverter, NodeToJsonConverter, Node>(fullNode) && FullyQualifiedName::Empty().IsEmpty() &&
           Identifier::Empty().IsEmpty();
}

/// Lives longer than anything that a conversion makes on first use.
const struct AtTheEnd
{
    ~AtTheEnd()
    {
        if (KeepsAll())
            std::puts("converted while the process ends");
    }
} atTheEnd;

} // namespace

int main()
{
    return KeepsAll() ? 0 : 1;
}
