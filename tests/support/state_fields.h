#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One value of the program's state: a flag or a number, which can be set, or a text.
struct StateField {
    std::string name; ///< "snake[0].length"
    bool* flag = nullptr;
    int32_t* number = nullptr;
    std::string text;

    /// In decimal; a flag is 0 or 1, an empty text is 0 too.
    std::string Value() const;
    int Number() const { return flag != nullptr ? *flag : number != nullptr ? *number : 0; }
    /// Throws for a text.
    void Set(int value) const;
};

/// "name[index]"
std::string At(const std::string& name, int index);

/// Everything on which the program's further course depends, in a fixed order: scene, input, random numbers, pond,
/// snakes, status bar, scenery and water, menu pages and settings. Pixels are no part of it.
std::vector<StateField> StateFields();

/// Null when there is none of that name.
const StateField* FindField(const std::vector<StateField>& fields, const std::string& name);

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
