#include <FuzzInput.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

namespace
{

using Bytes = std::vector<char>;

Bytes Read(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::filesystem::filesystem_error("cannot read", file, std::error_code());
    return Bytes(std::istreambuf_iterator<char>(stream), {});
}

void Run(const Bytes& bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

/// An input of the corpus with up to four changes, most of them with bytes of other inputs.
Bytes Mutated(const std::vector<Bytes>& corpus, std::mt19937& random)
{
    const auto below = [&](std::size_t end) { return static_cast<std::ptrdiff_t>(random() % end); };
    const auto any = [&]() -> const Bytes& { return *(corpus.begin() + below(corpus.size())); };
    auto input = any();
    for (auto changes = below(4); changes >= 0; --changes)
    {
        const auto& other = any();
        const auto place = input.begin() + below(input.size() + 1);
        const auto byte =
            other.empty() || below(4) == 0 ? static_cast<char>(below(256)) : *(other.begin() + below(other.size()));
        const auto kind = below(8);
        if (kind == 0)
            input.insert(place, byte);
        else if (kind == 1) // goes on as the other one
        {
            const auto rest = std::min(static_cast<std::size_t>(place - input.begin()), other.size());
            input.erase(place, input.end());
            input.insert(input.end(), other.begin() + static_cast<std::ptrdiff_t>(rest), other.end());
        }
        else if (place != input.end() && kind == 2)
            input.erase(place);
        else if (place != input.end())
            *place = byte;
    }
    return input;
}

Bytes current; // what is run, for the message when it fails

void TellInput(int)
{
    std::fputs("with the input ", stderr);
    for (const auto byte : current)
        std::fprintf(stderr, "\\x%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    std::fputc('\n', stderr);
}

} // namespace

/// Runs the fuzz target once on every file of the folders named, and on no input at all; with -runs=N, as for
/// libFuzzer, then on N inputs made from them, the same in each run.
int main(int count, char** arguments)
{
    const std::string_view option = "-runs=";
    std::vector<std::filesystem::path> files;
    std::vector<Bytes> corpus;
    int runs = 0;
    try
    {
        LLVMFuzzerTestOneInput(nullptr, 0);
        for (const std::string argument : std::vector(arguments + 1, arguments + count))
            if (argument.compare(0, option.size(), option) == 0)
                runs = std::stoi(argument.substr(option.size()));
            else
                for (const auto& entry : std::filesystem::directory_iterator(argument))
                    files.push_back(entry.path());
        std::sort(files.begin(), files.end());
        for (const auto& file : files)
        {
            std::fprintf(stderr, "%s\n", file.filename().c_str());
            Run(corpus.emplace_back(Read(file)));
        }
        if (corpus.empty())
            return 1; // a test that finds no corpus tests nothing
        std::signal(SIGABRT, TellInput);
        std::mt19937 random(1);
        for (int i = 0; i < runs; ++i)
            Run(current = Mutated(corpus, random));
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "stopped by an exception: %s\n", error.what());
        TellInput(0);
        return 1;
    }
    std::printf("%zu inputs and %d made from them\n", corpus.size(), runs);
    return 0;
}
