#include "Conversions.h"

#include <cstdio>

namespace
{

using namespace Qiv::Tests;

bool KeepsAll()
{
    return Written(FromText<MediaInput>(fullInput)) == fullInput &&
           Written(FromText<MediaOutput>(fullOutput)) == fullOutput && Written(FromText<Node>(fullNode)) == fullNode &&
           FullyQualifiedName::Empty().IsEmpty() && Identifier::Empty().IsEmpty();
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
