// A pack file: its index, and members that are read by name and by the entries that it claims to have.

#include "res/file_data.h"
#include "res/image_loader.h"
#include "res/pack_file.h"
#include "target.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const InputFile file;
    static const bool isMissing = !OpenPack("none");
    Require(isMissing);
    file.Write(data, size);
    if (!OpenPack(file.Path()))
        return 0;
    CPackFile& pack = packTable[0];
    for (uint32_t i = 0; i < std::min(pack.count, 16u); ++i)
        Require(pack.Find(pack.index[i].hash) != nullptr);
    for (const char* name : { "none/A.jpg", "none/b.bmp", "none" }) {
        CFileData member;
        if (member.Load(name))
            Require(member.size <= 2u << 20);
    }
    CImage image;
    LoadJpegFile(image, "none/A.jpg");
    LoadBmpFile(image, "none/b.bmp");
    LoadMaskFile(image, file.Path()); // which no pack is asked for
    Require(OpenPack("none"));        // once one is open
    pack.Close();
    return 0;
}
