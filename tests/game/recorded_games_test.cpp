#include "support/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace
{
/// Every recording there is, by name.
std::set<std::string> RecordingNames()
{
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(TEST_DATA_DIR))
        names.insert(entry.path().stem().string());
    return names;
}

using Recordings = testing::TestWithParam<std::string>;

TEST_P(Recordings, PlayAsTheyDid)
{
    const Recording recorded = ReadRecording(std::string(TEST_DATA_DIR "/") + GetParam() + ".txt");
    std::vector<std::string> unseen;
    const Recording played = Play(recorded, unseen);
    EXPECT_EQ(unseen, std::vector<std::string>()) << "it did not show these";
    for (size_t i = 0; i < played.stretches.size(); ++i)
        ASSERT_EQ(Text(played.stretches[i]), Text(recorded.stretches.at(i))) << recorded.about;
    EXPECT_EQ(played.stretches.size(), recorded.stretches.size()) << recorded.about;
}

INSTANTIATE_TEST_SUITE_P(All, Recordings, testing::ValuesIn(RecordingNames()),
                         [](const auto& test) { return test.param; });
}
