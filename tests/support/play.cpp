#include "app/frame_images.h"
#include "support/session.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace
{
/// Pictures are looked at in every so many frames, which is no divisor of anything that blinks, and in those with an
/// action.
constexpr int PICTURE_STEP = 7;
constexpr int RESOLVE_STEP = 10;
const std::string NOTHING = "0"; ///< the value of a field that is not written down

/// FIELD = NUMBER; also < and >.
struct Comparison {
    std::string field;
    char relation;
    int number;
    const StateField* found = nullptr;
};

/// Several comparisons that must hold together: "snake[0].isDying = 1, laser[0].active = 1".
class Condition
{
public:
    explicit Condition(const std::string& conditionText) : text(conditionText)
    {
        std::istringstream parts(text);
        for (std::string part; std::getline(parts, part, ',');) {
            Comparison& row = comparisons.emplace_back();
            if (!(std::istringstream(part) >> row.field >> row.relation >> row.number))
                throw std::runtime_error("not a condition: " + text);
        }
    }

    /// Fields come and go with the pages that are loaded.
    void Resolve(const std::vector<StateField>& fields)
    {
        for (Comparison& row : comparisons)
            row.found = FindField(fields, row.field);
    }
    void Look()
    {
        held = held || std::all_of(comparisons.begin(), comparisons.end(), [](const Comparison& row) {
                   if (row.found == nullptr)
                       return false;
                   const int value = row.found->Number();
                   return row.relation == '='   ? value == row.number
                          : row.relation == '<' ? value < row.number
                                                : value > row.number;
               });
    }

    std::string text;
    bool held = false;

private:
    std::vector<Comparison> comparisons;
};

class Recorder
{
public:
    explicit Recorder(const Recording& script) : recording(script), session(script.players, script.seed)
    {
        recording.stretches.clear();
        for (const std::string& text : script.shows)
            conditions.emplace_back(text);
    }

    Recording Run(std::vector<std::string>& unseen)
    {
        for (int frame = 0; frame < recording.frames && session.IsRunning(); ++frame)
            PlayFrame(frame);
        session.Close();
        EndStretch(recording.stretches.empty() ? 0 : recording.stretches.back().frame);
        for (const Condition& condition : conditions)
            if (!condition.held)
                unseen.push_back(condition.text);
        return recording;
    }

private:
    void PlayFrame(int frame)
    {
        const bool acts = next < recording.actions.size() && recording.actions[next].frame == frame;
        for (; next < recording.actions.size() && recording.actions[next].frame == frame; ++next)
            session.Do(recording.actions[next]);
        session.Frame();
        if ((acts || frame % PICTURE_STEP == 0) && backBuffer.pixels != nullptr)
            picture.AddBytes(backBuffer.pixels, static_cast<size_t>(backBuffer.pitch * backBuffer.height));
        LookAtConditions(frame);
        if ((frame + 1) % Recording::STRETCH == 0 || frame + 1 == recording.frames || !session.IsRunning())
            EndStretch(frame + 1);
    }

    void LookAtConditions(int frame)
    {
        if (frame % RESOLVE_STEP == 0 && frame <= 2 * RESOLVE_STEP && !conditions.empty()) {
            fields = session.Fields();
            for (Condition& condition : conditions)
                condition.Resolve(fields);
        }
        for (Condition& condition : conditions)
            condition.Look();
    }

    void EndStretch(int frame)
    {
        Stretch& stretch = recording.stretches.emplace_back();
        stretch.frame = frame;
        std::map<std::string, std::string> now;
        for (const StateField& field : session.Fields())
            if (field.Value() != NOTHING)
                now[field.name] = field.Value();
        Checksum sum;
        for (const auto& [name, value] : now) {
            sum.Add(name + ' ' + value);
            if (const auto old = before.find(name); old == before.end() || old->second != value)
                stretch.changes[name] = value;
        }
        for (const auto& [name, value] : before)
            if (!now.contains(name))
                stretch.changes.emplace(name, NOTHING);
        before = std::move(now);
        stretch.state = sum.Value();
        stretch.picture = std::exchange(picture, {}).Value();
        stretch.sounds = session.TakeSoundSum();
    }

    Recording recording;
    Session session;
    std::vector<Condition> conditions;
    std::vector<StateField> fields; ///< to which the conditions refer
    std::map<std::string, std::string> before;
    Checksum picture;
    size_t next = 0; ///< action
};
}

Recording Play(const Recording& script, std::vector<std::string>& unseen)
{
    return Recorder(script).Run(unseen);
}
