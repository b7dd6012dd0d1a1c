// Replays saved fuzz inputs (the seed corpus and past crashers) through the same round trip
// as the fuzz target, in an ordinary build. Arguments are files or folders of files.
#include "ProjectRoundTrip.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::string readBytes(const std::filesystem::path &path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        std::cerr << "usage: " << argv[0] << " FILE_OR_FOLDER...\n";
        return 2;
    }
    std::vector<std::filesystem::path> inputs;
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path arg = argv[i];
        if (std::filesystem::is_directory(arg)) {
            // Notes kept beside the inputs (README.md) are not inputs.
            for (const auto &entry : std::filesystem::directory_iterator(arg))
                if (entry.is_regular_file() && entry.path().extension() != ".md")
                    inputs.push_back(entry.path());
        } else if (std::filesystem::is_regular_file(arg)) {
            inputs.push_back(arg);
        } else {
            std::cerr << arg.string() << ": no such file or folder\n";
            return 1;
        }
    }
    std::sort(inputs.begin(), inputs.end());

    vorlane::fuzz::ProjectRoundTrip roundTrip;
    int failures = 0;
    for (const auto &input : inputs) {
        const std::string problem = roundTrip.run(readBytes(input));
        if (!problem.empty()) {
            std::cerr << input.string() << ": " << problem << "\n";
            ++failures;
        }
    }
    // The documents are reused between inputs, which only works if each run clears them.
    if (const std::string left = roundTrip.leftOver(); !left.empty()) {
        std::cerr << "the documents were not cleared between inputs: " << left << "\n";
        ++failures;
    }
    std::cout << inputs.size() << " inputs replayed, " << failures << " failed\n";
    return failures == 0 ? 0 : 1;
}
