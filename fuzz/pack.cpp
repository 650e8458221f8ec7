// A pack file: its index, and members that are read by name and by the entries that it claims to have.

#include "res/file_data.h"
#include "res/pack_file.h"
#include "target.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const InputFile file;
    file.Write(data, size);
    if (!OpenPack(file.Path()))
        return 0;
    CPackFile& pack = packTable[0];
    for (uint32_t i = 0; i < std::min(pack.count, 16u); ++i)
        Require(pack.Find(pack.index[i].hash) != nullptr);
    for (const char* name : { "none/a.jpg", "none/b.bmp" }) {
        CFileData member;
        if (member.Load(name))
            Require(member.size <= 4u << 20);
    }
    pack.Close();
    return 0;
}
