#include <FuzzInput.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace
{

std::vector<char> Read(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::filesystem::filesystem_error("cannot read", file, std::error_code());
    return std::vector<char>(std::istreambuf_iterator<char>(stream), {});
}

} // namespace

/// Runs the fuzz target once on every file of the folders named, and on no input at all.
int main(int count, char** arguments)
{
    std::size_t files = 0;
    try
    {
        LLVMFuzzerTestOneInput(nullptr, 0);
        for (int i = 1; i < count; ++i)
            for (const auto& entry : std::filesystem::directory_iterator(arguments[i]))
            {
                const auto bytes = Read(entry.path());
                std::fprintf(stderr, "%s\n", entry.path().filename().c_str());
                LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
                ++files;
            }
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "stopped by an exception: %s\n", error.what());
        return 1;
    }
    std::printf("%zu inputs\n", files);
    return files == 0 ? 1 : 0; // a test that finds no corpus tests nothing
}
