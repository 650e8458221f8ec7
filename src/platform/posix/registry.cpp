#include "platform/registry.h"

#include "platform/posix/out_of_memory.h"
#include "platform/posix/safe_file.h"
#include "platform/posix/toml.h"
#include "platform/posix/user_folders.h"

#include <cstdio>
#include <cstring>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// An open key: the values of its file, and whether they differ from it.
struct HKEY__ {
    std::string path;
    toml::table values;
    bool changed = false;
    bool isWhole = true; ///< false: a value was lost for lack of memory, on its way in or out
};

namespace
{

constexpr size_t MAX_FILE_BYTES = 1 << 16; // ten times the most that the game stores
constexpr char HEX_DIGITS[] = "0123456789abcdef";

struct Value {
    DWORD type;
    std::string bytes;
};

bool reported = false;

LONG Code(DWORD code)
{
    return static_cast<LONG>(code);
}

/// Hands the result on. The first failure is told: the game is played on, but what is set in it will be lost.
LONG Told(LONG result, const char* file)
{
    if (result != Code(ERROR_SUCCESS) && !std::exchange(reported, true))
        std::fprintf(stderr, "%s: Can not keep the settings\n", file);
    return result;
}

bool IsOpenKey(HKEY key)
{
    return key != nullptr && key != HKEY_CURRENT_USER;
}

/// The folder of a key's file: "Software\Tervalis" lies in "Tervalis". Empty when there is none.
std::string KeyFolder(LPCSTR subKey)
{
    const std::string_view name = subKey != nullptr ? subKey : "";
    return SettingsFolder(std::string(name.substr(name.find_last_of("\\/") + 1))); // nothing found is -1
}

/// Whether values come back from a file as they are.
bool Survives(const toml::table& values)
{
    const auto copy = ParseToml(FormatToml(values));
    return copy && *copy == values;
}

std::string ToHex(std::string_view bytes)
{
    std::string hex;
    for (const char c : bytes) {
        hex += HEX_DIGITS[static_cast<uint8_t>(c) >> 4];
        hex += HEX_DIGITS[static_cast<uint8_t>(c) & 15];
    }
    return hex;
}

std::optional<std::string> FromHex(const std::string& hex)
{
    if (hex.size() % 2 != 0 || hex.find_first_not_of(HEX_DIGITS) != std::string::npos)
        return std::nullopt;
    std::string bytes;
    for (size_t i = 0; i < hex.size(); i += 2) {
        const size_t high = std::string_view(HEX_DIGITS).find(hex[i]);
        const size_t low = std::string_view(HEX_DIGITS).find(hex[i + 1]);
        bytes += static_cast<char>(high << 4 | low);
    }
    return bytes;
}

std::string NumberBytes(DWORD number)
{
    std::string bytes(sizeof number, '\0');
    memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

/// Numbers and texts are TOML's own. What these cannot hold is { type = 1, hex = "0a41" }; so is a text with which the
/// file would have more dots than it may.
void Store(toml::table& values, std::string_view name, const Value& value)
{
    if (value.type == REG_DWORD && value.bytes.size() == sizeof(DWORD)) {
        DWORD number;
        memcpy(&number, value.bytes.data(), sizeof number);
        values.insert_or_assign(name, static_cast<int64_t>(number));
        return;
    }
    if (value.type == REG_SZ) {
        values.insert_or_assign(name, value.bytes);
        if (Survives(values))
            return;
    }
    toml::table encoded{ { "type", static_cast<int64_t>(value.type) }, { "hex", ToHex(value.bytes) } };
    encoded.is_inline(true);
    values.insert_or_assign(name, std::move(encoded));
}

std::optional<DWORD> AsNumber(const toml::node* node)
{
    const auto number = node != nullptr ? node->value_exact<int64_t>() : std::nullopt;
    if (!number || *number < 0 || *number > UINT32_MAX)
        return std::nullopt;
    return static_cast<DWORD>(*number);
}

/// Nothing for a missing value and for what a hand may have written there: a fraction, a list, a number out of range.
std::optional<Value> Fetch(const toml::table& values, std::string_view name)
{
    const toml::node* node = values.get(name);
    if (node == nullptr)
        return std::nullopt;
    if (const auto number = AsNumber(node))
        return Value{ REG_DWORD, NumberBytes(*number) };
    if (const auto text = node->value_exact<std::string>())
        return Value{ REG_SZ, *text };
    const toml::table* encoded = node->as_table();
    if (encoded == nullptr)
        return std::nullopt;
    const auto type = AsNumber(encoded->get("type"));
    const auto hex = (*encoded)["hex"].value_exact<std::string>();
    const auto bytes = hex ? FromHex(*hex) : std::nullopt;
    if (!type || !bytes)
        return std::nullopt;
    return Value{ *type, *bytes };
}

/// The library writes some names that a hand may have given so that it cannot read them again: one of them would spoil
/// the whole file.
void DropWhatCannotBeStored(toml::table& values)
{
    for (auto value = values.begin(); value != values.end();) {
        toml::table alone;
        alone.insert_or_assign(value->first, value->second);
        value = Survives(alone) ? std::next(value) : values.erase(value);
    }
}

/// A missing file has no values. A damaged one is set aside for its owner; one that cannot be read, or cannot be set
/// aside, is an error, so that no save replaces it.
LONG LoadValues(const std::string& path, toml::table& values)
{
    std::string text;
    const LONG result = ReadSmallFile(path, MAX_FILE_BYTES + 1, text);
    if (result == Code(ERROR_FILE_NOT_FOUND))
        return Code(ERROR_SUCCESS);
    if (result != Code(ERROR_SUCCESS))
        return result;
    auto parsed = text.size() <= MAX_FILE_BYTES ? ParseToml(text) : std::nullopt;
    if (!parsed)
        return SetFileAside(path);
    values = std::move(*parsed);
    if (Survives(values))
        return Code(ERROR_SUCCESS);
    DropWhatCannotBeStored(values);
    if (Survives(values))
        return Code(ERROR_SUCCESS);
    values.clear();
    return SetFileAside(path);
}

LONG OpenKey(LPCSTR subKey, HKEY* key)
{
    const std::string folder = KeyFolder(subKey);
    if (folder.empty())
        return Told(Code(ERROR_FILE_NOT_FOUND), "There is no home folder");
    if (const LONG result = MakeFolders(folder); result != Code(ERROR_SUCCESS))
        return Told(result, folder.c_str());
    auto opened = std::make_unique<HKEY__>();
    opened->path = folder + "/settings.toml";
    if (const LONG result = LoadValues(opened->path, opened->values); result != Code(ERROR_SUCCESS))
        return Told(result, opened->path.c_str());
    *key = opened.release();
    return Code(ERROR_SUCCESS);
}

/// Hands a value out as the system does: only its size, or all of it.
LONG CopyValue(const Value& value, DWORD* type, BYTE* data, DWORD* size)
{
    if (type != nullptr)
        *type = value.type;
    if (size == nullptr)
        return Code(ERROR_SUCCESS);
    const DWORD room = *size;
    *size = static_cast<DWORD>(value.bytes.size());
    if (data == nullptr)
        return Code(ERROR_SUCCESS);
    if (room < *size)
        return Code(ERROR_MORE_DATA);
    value.bytes.copy(reinterpret_cast<char*>(data), value.bytes.size());
    return Code(ERROR_SUCCESS);
}

/// One access to an open key's values.
template <class Access>
LONG Guard(HKEY key, Access access)
{
    const LONG result = OrOutOfMemory(Code(ERROR_NOT_ENOUGH_MEMORY), access);
    key->isWhole = key->isWhole && result != Code(ERROR_NOT_ENOUGH_MEMORY);
    return result;
}

}

LONG RegCreateKeyExA(HKEY parent, LPCSTR subKey, DWORD, LPSTR, DWORD, DWORD, SECURITY_ATTRIBUTES*, HKEY* key, DWORD*)
{
    if (parent != HKEY_CURRENT_USER || key == nullptr)
        return Code(ERROR_INVALID_HANDLE);
    return OrOutOfMemory(Code(ERROR_NOT_ENOUGH_MEMORY), [=] { return OpenKey(subKey, key); });
}

LONG RegQueryValueExA(HKEY key, LPCSTR name, DWORD*, DWORD* type, BYTE* data, DWORD* size)
{
    if (!IsOpenKey(key) || (data != nullptr && size == nullptr))
        return Code(ERROR_INVALID_HANDLE);
    return Guard(key, [=] {
        const auto value = Fetch(key->values, name != nullptr ? name : "");
        return value ? CopyValue(*value, type, data, size) : Code(ERROR_FILE_NOT_FOUND);
    });
}

LONG RegSetValueExA(HKEY key, LPCSTR name, DWORD, DWORD type, const BYTE* data, DWORD size)
{
    if (!IsOpenKey(key) || (data == nullptr && size != 0))
        return Code(ERROR_INVALID_HANDLE);
    return Guard(key, [=] {
        const std::string bytes = size != 0 ? std::string(reinterpret_cast<const char*>(data), size) : "";
        Store(key->values, name != nullptr ? name : "", Value{ type, bytes });
        key->changed = true;
        return Code(ERROR_SUCCESS);
    });
}

LONG RegCloseKey(HKEY key)
{
    if (!IsOpenKey(key))
        return Code(ERROR_INVALID_HANDLE);
    const std::unique_ptr<HKEY__> closing(key);
    if (!closing->isWhole)
        return Code(ERROR_NOT_ENOUGH_MEMORY);
    const LONG result = OrOutOfMemory(Code(ERROR_NOT_ENOUGH_MEMORY), [&] {
        return closing->changed ? ReplaceSmallFile(closing->path, FormatToml(closing->values)) : Code(ERROR_SUCCESS);
    });
    return Told(result, closing->path.c_str());
}
