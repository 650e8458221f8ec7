#include "res/pack_file.h"

#include <bit>
#include <string>
#include <string_view>

namespace
{
/// A keyless 32-bit mixing hash: words go in, x XOR y comes out. The files in use depend on every constant.
class NameHash
{
public:
    void Add(uint32_t word)
    {
        rotor = std::rotl(rotor, 1);
        const uint32_t key = 0x267B0B11 ^ rotor;
        x ^= word;
        y ^= word;
        const uint32_t xFactor = ((key + y) | 0x02040801) & 0xBFEF7FDF;
        const uint32_t yFactor = ((key + x) | 0x00804021) & 0x7DFEFBFF;
        x = MixX(uint64_t{ x } * xFactor);
        y = MixY(uint64_t{ y } * yFactor);
    }

    uint32_t Result() const { return x ^ y; }

private:
    static constexpr uint64_t WRAP = uint64_t{ 1 } << 32;

    /// The halves' sum; the end-around carries stand for a remainder.
    static uint32_t MixX(uint64_t product)
    {
        const uint64_t high = product >> 32;
        const uint64_t sum = (product % WRAP) + high + (high != 0 ? 1 : 0);
        return static_cast<uint32_t>(sum + (sum >= WRAP ? 1 : 0));
    }

    /// The low half plus twice the high one.
    static uint32_t MixY(uint64_t product)
    {
        const uint64_t twice = 2 * (product >> 32);
        const uint64_t sum = (product % WRAP) + (twice % WRAP) + (twice >= WRAP ? 1 : 0);
        return static_cast<uint32_t>(sum + (sum >= WRAP ? 2 : 0));
    }

    uint32_t x = 0x37A8470E;
    uint32_t y = 0x7758B42B;
    uint32_t rotor = 0xF4FA8928;
};

/// Up to four characters as a little-endian word, zeros above them.
uint32_t WordOf(std::string_view text)
{
    uint32_t word = 0;
    for (size_t i = text.size(); i-- > 0;)
        word = word << 8 | static_cast<uint8_t>(text[i]);
    return word;
}

char MemberCharacter(char c)
{
    if (c >= 'A' && c <= 'Z')
        return static_cast<char>(c - 'A' + 'a');
    return c == '/' ? '\\' : c;
}
}

uint32_t HashName(const char* text)
{
    NameHash hash;
    for (std::string_view rest = text; !rest.empty(); rest.remove_prefix(rest.size() < 4 ? rest.size() : 4))
        hash.Add(WordOf(rest.substr(0, 4)));
    hash.Add(0x9BE74448);
    hash.Add(0x66F42C48);
    return hash.Result();
}

std::string MemberName(const char* path)
{
    const std::string_view request = path;
    const size_t slash = request.find('/');
    if (slash == std::string_view::npos)
        return {};
    std::string name(request.substr(slash));
    for (char& c : name)
        c = MemberCharacter(c);
    return name;
}

uint32_t HashMember(const char* path)
{
    const std::string name = MemberName(path);
    return name.empty() ? 0 : HashName(name.c_str());
}
