// Prints what the pictures must agree with in the code's tables. Finds pictures as the game does: beside itself.
//
//     picture NAME WIDTH HEIGHT -        a file that the program loads
//     picture NAME WIDTH HEIGHT MASK     with the file of its alpha plane
//     picture NAME WIDTH HEIGHT keyed    drawn without its white pixels
//     box NAME X Y WIDTH HEIGHT          a button, toggle or field on that picture

#include "actors/snake_pictures.h"
#include "actors/status_bar_pictures.h"
#include "app/frame_images.h"
#include "game/pond_pictures.h"
#include "game/section_main.h"
#include "menu/menu_pictures.h"
#include "menu/section_menu.h"
#include "res/pack_file.h"

#include <filesystem>
#include <iostream>
#include <set>
#include <sstream>
#include <string>

namespace
{
/// Sorted, each once: owners share pictures.
std::set<std::string> lines;

template <typename... Words>
void AddLine(const char* kind, const Words&... words)
{
    std::ostringstream line;
    line << kind;
    ((line << ' ' << words), ...);
    lines.insert(line.str());
}

std::string FileName(const char* file, int index)
{
    const std::string path = PicturePath(file, index).data();
    return path.substr(path.find('/') + 1);
}

void AddPictures(std::span<const PictureRow> rows)
{
    for (const PictureRow& row : rows) {
        for (int i = 0; i < row.count; ++i) {
            const auto [width, height] = SizeOf(row, i);
            const std::string mask = row.mask ? FileName(row.mask, i) : row.blit == BlitColorKey ? "keyed" : "-";
            AddLine("picture", FileName(row.file, i), width, height, mask);
            if (row.mask)
                AddLine("picture", mask, width, height, '-');
        }
    }
}

/// The file of an image, by the rows of its owner's images.
std::string FileOf(const CImage* image, const CImage* images, std::span<const PictureRow> rows)
{
    const auto index = static_cast<int>(image - images);
    for (const PictureRow& row : rows)
        if (index >= row.image && index < row.image + row.count)
            return FileName(row.file, index - row.image);
    return "?";
}

template <typename Item>
void AddBoxes(const std::string& file, std::span<const Item> items)
{
    for (const Item& item : items)
        AddLine("box", file, item.box.x, item.box.y, item.box.width, item.box.height);
}

void AddPanel(const CMenu& panel, const CImage* images, std::span<const PictureRow> rows)
{
    const std::string file = FileOf(panel.background, images, rows);
    AddBoxes<MenuButton>(file, { panel.buttons, static_cast<size_t>(panel.buttonCount) });
    AddBoxes<MenuToggle>(file, { panel.toggles, static_cast<size_t>(panel.toggleCount) });
    AddBoxes<MenuText>(file, { panel.texts, static_cast<size_t>(panel.textCount) });
}

template <typename Owner>
bool Load(Owner& owner)
{
    bool done = false;
    while (!done && owner.DataLoad(done)) {
    }
    return done;
}
}

int main(int, char** arguments)
{
    std::filesystem::current_path(std::filesystem::absolute(arguments[0]).parent_path());
    OpenPack("Dat\\Image.xpf");
    CStatusBar& bar = sectionMain.pond.statusBar;
    if (!backBuffer.Create(SCREEN_WIDTH, SCREEN_HEIGHT) || !Load(sectionMenu) || !Load(bar))
        return 1;
    AddPictures(pondPictures);
    AddPictures(snakePictures);
    AddPictures(statusPictures);
    AddPictures(menuPictures);
    for (const CMenu* page : { &sectionMenu.mainMenu, &sectionMenu.optionsMenu, &sectionMenu.rankingMenu })
        AddPanel(*page, sectionMenu.images, menuPictures);
    for (const CMenu& page : sectionMenu.helpMenus)
        AddPanel(page, sectionMenu.images, menuPictures);
    for (const CMenu* panel : { &bar.leftPanel, &bar.pausedPanel, &bar.confirmPanel, &bar.nextLevelPanel })
        AddPanel(*panel, bar.images, statusPictures);
    for (const std::string& line : lines)
        std::cout << line << '\n';
}
