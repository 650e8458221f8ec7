#include "support/temp_folder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

TempFolder::TempFolder() : before(fs::current_path().string())
{
    std::string pattern = (fs::temp_directory_path() / "tervalis-test-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no temporary folder");
    path = pattern;
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
