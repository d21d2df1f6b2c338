// A target without libFuzzer: the files of the folders named are checked once each, as a test does it.
#include "fuzz/Check.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

int main(int argc, char** argv)
{
    int nFiles = 0, nBroken = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
            const std::string broken = fuzz::Check(bytes);
            ++nFiles;
            nBroken += broken.empty() ? 0 : 1;
            if (!broken.empty())
                std::fprintf(stderr, "%s: %s\n", entry.path().c_str(), broken.c_str());
        }
    std::printf("%d files, %d broken promises\n", nFiles, nBroken);
    return nFiles > 0 && nBroken == 0 ? 0 : 1;
}
