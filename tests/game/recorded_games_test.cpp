#include "support/session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace
{
/// Every recording there is, by name.
std::vector<std::string> RecordingNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA_DIR))
        names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

class Recordings : public testing::TestWithParam<std::string>
{
};

TEST_P(Recordings, PlayAsTheyDid)
{
    const Recording recorded = ReadRecording(std::string(TEST_DATA_DIR "/") + GetParam() + ".txt");
    std::vector<std::string> unseen;
    const Recording played = Play(recorded, unseen);
    EXPECT_EQ(FirstDifference(recorded, played), "") << recorded.about;
    for (const std::string& condition : unseen)
        ADD_FAILURE() << "did not show: " << condition;
}

INSTANTIATE_TEST_SUITE_P(All, Recordings, testing::ValuesIn(RecordingNames()),
                         [](const auto& test) { return test.param; });
}
