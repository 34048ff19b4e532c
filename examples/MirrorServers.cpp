// Mirrors servers from the documents on standard input, one a line, and prints what has changed whenever an empty line
// ends a burst of them: for each channel the update from what was printed before, or the snapshot that it takes.
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Documents/ToText.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Mirrors/Mirror.h>
#include <Qiv/DataModel/Tarvonel/Serialization/Json/Updates/WriteUpdate.h>

#include <cstddef>
#include <iostream>
#include <set>
#include <string>

using namespace Qiv::DataModel::Tarvonel::Serialization::Json;
using Mirrors::Effect;
using Mirrors::Mirror;
using Qiv::Common::Serialization::Json::Stringer;

namespace
{

// Brings a receiver that holds what `shown` holds to the channel's state, and prints what it is sent.
void Show(const std::string& id, const Mirror& servers, Mirror& shown)
{
    const auto& channel = *servers.FindChannel(id);
    const auto* const before = shown.FindChannel(id);
    if (before == nullptr)
    {
        static_cast<void>(shown.ApplySnapshot(Documents::ToText(channel)));
        return;
    }

    Stringer update;
    const auto result = Updates::WriteUpdate(*before, channel, update);
    if (!result)
    {
        std::cout << id << ": a snapshot, since " << result.Omissions().front().pointer << ": "
                  << result.Omissions().front().sentence << '\n';
        static_cast<void>(shown.ApplySnapshot(Documents::ToText(channel)));
    }
    else if (result.HasChanges())
    {
        std::cout << update.ToString() << '\n';
        static_cast<void>(shown.Apply(update.ToString()));
    }
}

} // namespace

int main()
{
    Mirror servers;
    Mirror shown;
    std::set<std::string> changed;
    const auto endBurst = [&]
    {
        for (const auto& id : changed)
            Show(id, servers, shown);
        changed.clear();
        std::cout << "-- " << shown.Channels().size() << " channels\n";
    };

    std::string line;
    for (std::size_t number = 1; std::getline(std::cin, line); ++number)
    {
        if (line.empty())
        {
            endBurst();
            continue;
        }
        const auto result = servers.Apply(line);
        if (!result)
            std::cout << "line " << number << ", column " << result.Position().column << ": " << result.ErrorMessage()
                      << '\n';
        else if (result.Effect() != Effect::Unchanged && result.Kind() != DocumentKind::Node)
            changed.insert(result.Id());
    }
    endBurst();
}
