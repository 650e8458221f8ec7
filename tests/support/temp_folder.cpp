#include "support/temp_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

namespace fs = std::filesystem;

namespace
{
/// No other process has the folder: making one that exists already is no success.
fs::path NewFolder()
{
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        fs::path folder = fs::temp_directory_path() / ("tervalis-test-" + std::to_string(random()));
        if (fs::create_directory(folder))
            return folder;
    }
    throw std::runtime_error("no temporary folder");
}
}

TempFolder::TempFolder() : before(fs::current_path().string())
{
    path = NewFolder().string();
    fs::current_path(path);
}

TempFolder::~TempFolder()
{
    std::error_code ignored;
    fs::current_path(before, ignored);
    fs::remove_all(path, ignored);
}

std::string TempFolder::Read(const std::string& name) const
{
    std::ifstream file(fs::path(path) / name, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>() };
}

void TempFolder::Write(const std::string& name, const std::string& content) const
{
    const fs::path target = fs::path(path) / name;
    fs::create_directories(target.parent_path());
    std::ofstream(target, std::ios::binary) << content;
}
