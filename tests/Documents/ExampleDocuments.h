#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace Qiv::Tests
{

/// The documents of examples/documents as the library writes them.
inline std::vector<std::string> ExampleDocuments()
{
    std::vector<std::string> documents;
    for (const auto& file : std::filesystem::directory_iterator(QIV_TESTS_FOLDER "/../examples/documents/canonical"))
    {
        std::ifstream stream(file.path());
        for (std::string line; std::getline(stream, line);)
            documents.push_back(line);
    }
    if (documents.empty())
        throw std::runtime_error("no example documents");
    return documents;
}

} // namespace Qiv::Tests
