#include "sound/wave.h"
#include "sound/wave_bytes.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

/// Sizes that no file has: systems differ in what they make of them.
TEST(RiffFile, AChunkBeyondAnyFileIsTakenForWhatThereIs)
{
    const struct {
        std::string content;
        int result;
        const char* what;
    } cases[] = {
        { Wave(Chunk("fmt ", Format(), 0xFFFFFFFF)), MMIOERR_CANNOTSEEK, "format: cannot be left again" },
        { Chunk("RIFF", "WAVE" + Chunk("fmt ", Format()), 0xFFFFFFFF), 0, "RIFF" },
    };
    const TempFolder folder;
    for (const auto& row : cases) {
        folder.Write("a.wav", row.content);
        HMMIO file = nullptr;
        WAVEFORMATEX* format = nullptr;
        MMCKINFO riff{};
        EXPECT_EQ(WaveOpen("a.wav", &file, &format, &riff), row.result) << row.what;
        EXPECT_EQ(file != nullptr, row.result == 0) << row.what;
        WaveClose(&file, &format);
    }
}
