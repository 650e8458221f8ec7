#include "support/temp_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace fs = std::filesystem;

TempFolder::TempFolder() : before(fs::current_path().string())
{
    std::random_device random;
    do // no other process has the folder: making one that exists already is no success
        path = (fs::temp_directory_path() / ("tervalis-test-" + std::to_string(random()))).string();
    while (!fs::create_directory(path));
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
