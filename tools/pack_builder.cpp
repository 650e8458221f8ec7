// Packs the files of a folder into one pack file. The same files give the same pack, byte for byte.

#include "res/pack_file.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace
{
constexpr size_t HEADER_BYTES = 8;
constexpr size_t ENTRY_BYTES = 12;

struct Member {
    std::string name; ///< a backslash and the file's name in lower case
    fs::path path;
    uint32_t hash;
};

std::string ReadWhole(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string bytes(fs::file_size(path), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file)
        throw std::runtime_error("can not read " + path.string());
    return bytes;
}

std::vector<Member> ListMembers(const fs::path& folder)
{
    std::vector<Member> members;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (!entry.is_regular_file())
            continue;
        const std::string name = MemberName(("/" + entry.path().filename().string()).c_str());
        members.push_back({ name, entry.path(), HashName(name.c_str()) });
    }
    std::sort(members.begin(), members.end(), [](const Member& a, const Member& b) { return a.name < b.name; });
    return members;
}

/// Of two members with one hash the program would only ever find the first.
void RefuseCollisions(const std::vector<Member>& members)
{
    std::map<uint32_t, const Member*> known;
    for (const Member& member : members) {
        const auto [other, isNew] = known.emplace(member.hash, &member);
        if (isNew)
            continue;
        const bool sameName = other->second->name == member.name;
        throw std::runtime_error(other->second->path.string() + " and " + member.path.string() +
                                 (sameName ? " differ only in letter case" : " have the same name hash"));
    }
}

void AppendLe32(std::string& bytes, size_t value)
{
    if (value > std::numeric_limits<uint32_t>::max())
        throw std::runtime_error("the pack would be larger than 4 GB");
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<char>(value >> shift & 0xFF));
}

std::string BuildPack(const std::vector<Member>& members)
{
    std::string index = "FPX_";
    std::string data;
    AppendLe32(index, members.size());
    const size_t dataStart = HEADER_BYTES + members.size() * ENTRY_BYTES;
    for (const Member& member : members) {
        const std::string bytes = ReadWhole(member.path);
        AppendLe32(index, member.hash);
        AppendLe32(index, dataStart + data.size());
        AppendLe32(index, bytes.size());
        data += bytes;
    }
    return index + data;
}

/// Through a temporary file, so that a failure leaves no half-written pack.
void WriteWhole(const fs::path& path, const std::string& bytes)
{
    fs::path temporary = path;
    temporary += ".tmp";
    std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        throw std::runtime_error("can not write " + temporary.string());
    }
    fs::rename(temporary, path);
}
}

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: pack_builder FOLDER PACK\n"
                             "Packs the files of FOLDER, without its subfolders, into the file PACK.\n");
        return 2;
    }
    try {
        const std::vector<Member> members = ListMembers(argv[1]);
        RefuseCollisions(members);
        WriteWhole(argv[2], BuildPack(members));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "pack_builder: %s\n", error.what());
        return 1;
    }
    return 0;
}
