#include "bot.h"

#include "actors/snake.h"
#include "menu/key_bindings.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <vector>

namespace
{
constexpr int SPACE_KEY = 32;
constexpr int PAUSE_FRAMES = 25;
constexpr int NO_TARGET = -1;
constexpr int NO_CELL = -1;

constexpr int STREAK_BEFORE_LASER = 4;
constexpr int SPARE_ROOM = 5; ///< free cells beyond its length that a way must lead to
constexpr int OWN_MARGIN = 1; ///< cells that a body may grow on the way
constexpr int OTHER_MARGIN = 3;
constexpr int FEARED_STEPS = 2; ///< how far ahead of the other's head it keeps

constexpr int DIRECTIONS = KEY_BINDINGS / 2;
constexpr std::array<uint32_t, KEY_BINDINGS> defaultKeys = DefaultKeys();

/// The player's four keys, in the order of directions.
const uint32_t* KeysOf(int player)
{
    return defaultKeys.data() + player * DIRECTIONS;
}

int DirectionOfKey(int player, int key)
{
    const uint32_t* keys = KeysOf(player);
    const uint32_t* found = std::find(keys, keys + DIRECTIONS, static_cast<uint32_t>(key));
    return found == keys + DIRECTIONS ? NO_DIRECTION : static_cast<int>(found - keys);
}

/// The cell whose grid point a segment stands on or reaches next.
int CellAhead(const Segment& segment, int player)
{
    int x = segment.x;
    int y = segment.y;
    const int direction = DirectionOfKey(player, segment.dir);
    if (direction == NO_DIRECTION)
        return NO_CELL;
    if (directions[direction].dx > 0 || directions[direction].dy > 0) {
        x += CELL_SIZE - 1;
        y += CELL_SIZE - 1;
    }
    return y / CELL_SIZE % CELL_ROWS * CELL_COLUMNS + x / CELL_SIZE % CELL_COLUMNS;
}
}

int Neighbour(int cell, int direction)
{
    const int column = (cell % CELL_COLUMNS + directions[direction].dx + CELL_COLUMNS) % CELL_COLUMNS;
    const int row = (cell / CELL_COLUMNS + directions[direction].dy + CELL_ROWS) % CELL_ROWS;
    return row * CELL_COLUMNS + column;
}

bool HasBerry(const Cell& cell)
{
    return cell.occupied && !cell.IsStone();
}

int Bot::NextKey(int frame)
{
    if (frame == style.pauseAt || frame == style.pauseAt + PAUSE_FRAMES)
        return SPACE_KEY;
    // One key a frame: the players take turns at the first choice.
    for (int i = 0; i <= pond.players; ++i) {
        const int key = KeyFor((frame + i) % (pond.players + 1), frame);
        if (key != 0)
            return key;
    }
    return 0;
}

int Bot::KeyFor(int player, int frame)
{
    const CSnake& snake = pond.snake[player];
    if (pond.introFrames <= 30 || snake.isOut || snake.isDying || snake.isPaused || !snake.isActive ||
        snake.turnCount > 0 || snake.startPressed)
        return 0;
    constexpr int CLOCKWISE[] = { 3, 2, 0, 1 };
    const int direction = DirectionOfKey(player, snake.segments[0].dir);
    if (direction == NO_DIRECTION)
        return 0;
    const bool isReckless =
        (frame >= style.recklessFrom || pond.statusBar.level >= style.recklessLevel) && !snake.isWaiting;
    int wanted = isReckless ? CLOCKWISE[direction] : WantedDirection(player);
    if (wanted == NO_DIRECTION)
        wanted = direction; // nowhere to go: a waiting snake starts nevertheless, it is safe at first
    if (wanted == direction && !snake.isWaiting)
        return 0;
    return static_cast<int>(KeysOf(player)[wanted]);
}

int Bot::WantedDirection(int player)
{
    const CSnake& snake = pond.snake[player];
    const Segment& head = snake.segments[0];
    const int start = CellAhead(head, player);
    const int direction = DirectionOfKey(player, head.dir);
    const int behind = Neighbour(start, static_cast<int>(directions[direction].reverse));
    Survey(player);
    SearchFrom(start, snake.isWaiting ? NO_CELL : behind);
    roomNeeded = snake.length + SPARE_ROOM;
    if (style.firesAtGold && snake.lastColour == ORANGE && snake.streak == STREAK_BEFORE_LASER) {
        const int aimed = DirectionToAim(start);
        if (aimed != NO_DIRECTION)
            return aimed;
    }
    const int target = BestTarget(snake, start);
    return target != NO_TARGET ? FirstDirectionTo(target, start) : RoomiestDirection(start, behind);
}

void Bot::Survey(int player)
{
    berries.fill(0);
    for (int i = 0; i < CELL_COUNT; ++i) {
        const Cell& cell = pond.cells[i];
        freeFrom[static_cast<size_t>(i)] = cell.IsStone() ? UNREACHED : 0;
        if (HasBerry(cell))
            ++berries[static_cast<size_t>(cell.colour)];
    }
    MarkBody(pond.snake[player], OWN_MARGIN);
    if (pond.players == 0)
        return;
    const CSnake& other = pond.snake[1 - player];
    if (other.length == 0)
        return;
    MarkBody(other, OTHER_MARGIN);
    int cell = CellAhead(other.segments[0], 1 - player);
    for (int step = 0; step < FEARED_STEPS && cell != NO_CELL; ++step) {
        for (int direction = 0; direction < 4; ++direction) {
            int& from = freeFrom[static_cast<size_t>(Neighbour(cell, direction))];
            from = std::max(from, FEARED_STEPS + 1);
        }
        const int direction = DirectionOfKey(1 - player, other.segments[0].dir);
        cell = Neighbour(cell, direction);
    }
}

/// A segment's cell is free again when the tail has passed it.
void Bot::MarkBody(const CSnake& snake, int margin)
{
    for (int i = 0; i < snake.length; ++i) {
        const int cell = CellAhead(snake.segments[i], snake.player - 1);
        if (cell == NO_CELL)
            continue;
        int& from = freeFrom[static_cast<size_t>(cell)];
        from = std::max(from, snake.length - i + margin);
    }
}

/// The distances of all cells, in cells walked.
void Bot::SearchFrom(int start, int forbiddenCell)
{
    distance.fill(UNREACHED);
    cameFrom.fill(NO_CELL);
    distance[static_cast<size_t>(start)] = 0;
    std::vector<int> open{ start };
    for (size_t next = 0; next < open.size(); ++next) {
        const int cell = open[next];
        const int walked = distance[static_cast<size_t>(cell)] + 1;
        for (int direction = 0; direction < 4; ++direction) {
            const auto to = static_cast<size_t>(Neighbour(cell, direction));
            const bool isBehind = cell == start && static_cast<int>(to) == forbiddenCell;
            if (isBehind || distance[to] != UNREACHED || walked < freeFrom[to])
                continue;
            distance[to] = walked;
            cameFrom[to] = cell;
            if (!HasBerry(pond.cells[to])) // a way ends with the first berry that it meets
                open.push_back(static_cast<int>(to));
        }
    }
}

/// The berry to go for; one in a dead end only if there is no other.
int Bot::BestTarget(const CSnake& snake, int start) const
{
    std::array<int, GOLDEN + 1> costs{};
    for (int colour = 0; colour <= GOLDEN; ++colour)
        costs[static_cast<size_t>(colour)] = BerryCost(snake, colour);
    std::vector<std::pair<int, int>> targets; // cost, cell
    for (int i = 0; i < CELL_COUNT; ++i) {
        const int walked = distance[static_cast<size_t>(i)];
        if (HasBerry(pond.cells[i]) && walked != 0 && walked != UNREACHED)
            targets.emplace_back(walked + costs[static_cast<size_t>(pond.cells[i].colour)], i);
    }
    std::sort(targets.begin(), targets.end());
    for (const auto& [cost, cell] : targets) {
        if (RoomBeyond(cell, start) >= roomNeeded)
            return cell;
    }
    return targets.empty() ? NO_TARGET : targets.front().second;
}

int Bot::FirstDirectionTo(int target, int start) const
{
    int cell = target;
    while (cameFrom[static_cast<size_t>(cell)] != start)
        cell = cameFrom[static_cast<size_t>(cell)];
    for (int direction = 0; direction < 4; ++direction) {
        if (Neighbour(start, direction) == cell)
            return direction;
    }
    return NO_DIRECTION;
}

int Bot::RoomiestDirection(int start, int forbiddenCell) const
{
    int best = NO_DIRECTION;
    int bestRoom = 0;
    for (int direction = 0; direction < 4; ++direction) {
        const int cell = Neighbour(start, direction);
        if (cell == forbiddenCell || freeFrom[static_cast<size_t>(cell)] > 1)
            continue;
        std::array<bool, CELL_COUNT> taken{};
        taken[static_cast<size_t>(start)] = true;
        const int room = Room(cell, taken);
        if (room > bestRoom) {
            best = direction;
            bestRoom = room;
        }
    }
    return best;
}

/// How many cells a snake that has gone from `start` to `end` could go on to.
int Bot::RoomBeyond(int end, int start) const
{
    std::array<bool, CELL_COUNT> taken{};
    for (int cell = end; cell != start; cell = cameFrom[static_cast<size_t>(cell)])
        taken[static_cast<size_t>(cell)] = true;
    taken[static_cast<size_t>(start)] = true;
    return Room(end, taken);
}

/// How many cells can be reached from a cell, bodies taken as they lie; counted up to `roomNeeded`.
int Bot::Room(int start, std::array<bool, CELL_COUNT> taken) const
{
    taken[static_cast<size_t>(start)] = true;
    std::vector<int> open{ start };
    for (size_t next = 0; next < open.size() && open.size() < static_cast<size_t>(roomNeeded); ++next) {
        for (int direction = 0; direction < 4; ++direction) {
            const auto to = static_cast<size_t>(Neighbour(open[next], direction));
            if (taken[to] || freeFrom[to] > 1)
                continue;
            taken[to] = true;
            open.push_back(static_cast<int>(to));
        }
    }
    return static_cast<int>(open.size());
}
