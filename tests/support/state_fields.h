#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

/// One value of the program's state: a flag or a number, which can be set, or a text.
class StateField
{
public:
    StateField(bool& value) : flag(&value) {}
    StateField(int32_t& value) : number(&value) {}
    StateField(uint32_t& value) : number(reinterpret_cast<int32_t*>(&value)) {}
    StateField(std::string value) : text(std::move(value)) {}

    /// In decimal; a flag is 0 or 1, an empty text is 0 too.
    std::string Value() const;
    int Number() const { return flag != nullptr ? *flag : number != nullptr ? *number : 0; }
    /// Nothing happens to a text.
    void Set(int value) const;

private:
    bool* flag = nullptr;
    int32_t* number = nullptr;
    std::string text;
};
using StateFields = std::map<std::string, StateField>; ///< by name: "snake[0].length"

/// "name[index]"
std::string At(const std::string& name, int index);

/// Everything on which the program's further course depends: scene, input, random numbers, pond, snakes, status bar,
/// scenery and water, menu pages and settings. Pixels are no part of it.
StateFields ProgramState();

/// FNV-1a over whole numbers, 64 bits.
class Checksum
{
public:
    void Add(uint64_t number)
    {
        value ^= number;
        value *= 0x100000001B3;
        value ^= value >> 29; // a whole number goes in at once, so its high bits must reach the low ones
    }
    void Add(const std::string& text);
    /// As 64-bit words; what is left over at the end as bytes.
    void AddBytes(const void* bytes, size_t count);
    uint64_t Value() const { return value; }

private:
    uint64_t value = 0xCBF29CE484222325;
};
