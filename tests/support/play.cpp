#include "app/frame_images.h"
#include "support/session.h"
#include "support/sounds_heard.h"

#include <algorithm>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace
{
/// Pictures are looked at in every so many frames, which is no divisor of anything that blinks, and in those with an
/// action.
constexpr int PICTURE_STEP = 7;

/// FIELD = NUMBER; also < and >.
struct Comparison {
    StateField field;
    char relation;
    int number;

    bool Holds() const
    {
        const int value = field.Number();
        return relation == '=' ? value == number : relation == '<' ? value < number : value > number;
    }
};

/// A recording in the making.
struct Recorder {
    explicit Recorder(const Recording& script) : recording(script), session(script.players, script.seed) {}

    Recording Run(std::vector<std::string>& unseen)
    {
        recording.stretches.clear();
        for (int frame = 0; frame < recording.frames && session.IsRunning(); ++frame)
            PlayFrame(frame);
        session.Close();
        EndStretch(recording.stretches.back().frame);
        for (const auto& [text, comparisons] : unmet)
            unseen.push_back(text);
        return recording;
    }

    /// Comparisons that must hold together: "snake[0].isDying = 1, laser[0].active = 1".
    void AddCondition(const std::string& text)
    {
        std::istringstream parts(text);
        for (std::string part; std::getline(parts, part, ',');) {
            std::istringstream words(part);
            std::string name;
            char relation = 0;
            int number = 0;
            if (!(words >> name >> relation >> number))
                throw std::runtime_error("not a condition: " + text);
            unmet[text].push_back({ session.Field(name), relation, number });
        }
    }

    void PlayFrame(int frame)
    {
        const bool acts = next < recording.actions.size() && recording.actions[next].frame == frame;
        for (; next < recording.actions.size() && recording.actions[next].frame == frame; ++next)
            session.Do(recording.actions[next]);
        session.Frame();
        if ((acts || frame % PICTURE_STEP == 0) && backBuffer.pixels != nullptr)
            picture.AddBytes(backBuffer.pixels, static_cast<size_t>(backBuffer.pitch * backBuffer.height));
        for (size_t i = 0; frame == 0 && i < recording.shows.size(); ++i) // a game has its snakes from now on
            AddCondition(recording.shows[i]);
        std::erase_if(unmet, [](const auto& each) {
            return std::all_of(each.second.begin(), each.second.end(), std::mem_fn(&Comparison::Holds));
        });
        if ((frame + 1) % Recording::STRETCH == 0 || frame + 1 == recording.frames || !session.IsRunning())
            EndStretch(frame + 1);
    }

    void EndStretch(int frame)
    {
        Stretch& stretch = recording.stretches.emplace_back();
        StateFields fields = session.Fields();
        for (const auto& [name, value] : values)
            fields.try_emplace(name, std::string()); // gone by now
        Checksum state;
        for (const auto& [name, field] : fields) {
            const std::string value = field.Value();
            if (value != Recording::ABSENT)
                state.Add(name + ' ' + value);
            std::string& before = values.try_emplace(name, Recording::ABSENT).first->second;
            if (value != before)
                stretch.changes[name] = before = value;
        }
        stretch.frame = frame;
        stretch.state = state.Value();
        stretch.picture = std::exchange(picture, {}).Value();
        stretch.sounds = std::exchange(soundsHeard.calls, {}).Value();
    }

    Recording recording;
    Session session;
    std::map<std::string, std::vector<Comparison>> unmet; ///< conditions, by their texts
    std::map<std::string, std::string> values;            ///< of all fields there ever were, at the last stretch's end
    Checksum picture;
    size_t next = 0; ///< action
};
}

Recording Play(const Recording& script, std::vector<std::string>& unseen)
{
    return Recorder(script).Run(unseen);
}
