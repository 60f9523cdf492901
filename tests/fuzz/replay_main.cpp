// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& place) {
    if (!std::filesystem::is_directory(place)) return {place};
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(place)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// Whether the fuzz target takes the file as it must; why not goes to standard error.
bool replay(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    const std::string bytes = content.str();
    try {
        if (!stream) throw std::runtime_error("cannot be read");
        if (LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()) == 0)
            return true;
        throw std::runtime_error("is too large for the fuzz target");
    } catch (const std::exception& error) {
        std::cerr << path.string() << ": " << error.what() << '\n';
        return false;
    }
}

}  // namespace

/// Runs the fuzz target over files and over all files of folders, without a fuzzer.
int main(int argc, char** argv) {
    int count = 0;
    int failed = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& path : filesIn(argv[i])) {
            ++count;
            if (!replay(path)) ++failed;
        }
    }
    std::cout << count << " files, " << failed << " failed\n";
    return count > 0 && failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
