#include <Converters/Conversions.h>
#include <Converters/ModelGenerator.h>

#include <iostream>

using namespace Qiv::Tests;

// Prints what the writers make of generated entities of every kind, one document a line.
int main()
{
    ModelGenerator generator(3);
    for (int i = 0; i < 100; ++i)
    {
        auto input = generator.MakeMediaInput();
        if (i % 10 == 0) // time codes that readers do not take
        {
            input.LastTodTimecode({10, 0, 0, i, Qiv::TimePoints::Rate(120), false});
            input.LastUserTimecode({2016, 3, 21, 23, 59, 59, 119, Qiv::TimePoints::Rate(120), false});
        }
        std::cout << Written(input) << '\n'
                  << Written(generator.MakeMediaOutput()) << '\n'
                  << Written(generator.MakeSequenceOutput()) << '\n'
                  << Written(generator.MakeSpeed()) << '\n'
                  << Written(generator.MakeBoundary()) << '\n'
                  << Written(generator.MakeNode()) << '\n';
    }
}
