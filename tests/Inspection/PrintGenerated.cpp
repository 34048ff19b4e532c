#include <Converters/ModelGenerator.h>

#include <iostream>

using namespace Qiv::Tests;

// Prints documents of every kind as the writers write them, one a line.
int main()
{
    ModelGenerator generator(3);
    const auto print = [&](auto entity, const char* rule)
    {
        Read(generator.Document(rule), entity);
        std::cout << Written(entity) << '\n';
    };
    for (int i = 0; i < 100; ++i)
    {
        print(MediaInput(), "MediaInput");
        print(MediaOutput(), "MediaOutput");
        print(SequenceOutput(), "SequenceOutput");
        print(Speed(), "Speed");
        print(std::unique_ptr<Boundary>(), "Boundary");
        print(Node(), "Node");
        MediaInput input; // with time codes that readers do not take
        input.LastTodTimecode({10, 0, 0, i, Qiv::TimePoints::Rate(120), false});
        input.LastUserTimecode({2016, 3, 21, 23, 59, 59, 119, Qiv::TimePoints::Rate(120), false});
        std::cout << Written(input) << '\n';
    }
}
