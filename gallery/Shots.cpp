#include "gallery/Shots.h"

#include <cstdio>
#include <filesystem>
#include <vector>

#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Png.h"

namespace gallery {
namespace {

/// The windows of the program that lie above its main window and that can be seen, the lowest first.
std::vector<HWND> WindowsAbove(HWND main) {
    std::vector<HWND> windows;
    for (HWND window = ::GetWindow(main, GW_HWNDPREV); window; window = ::GetWindow(window, GW_HWNDPREV)) {
        const bool isOurs = ::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId();
        if (isOurs && ::IsWindowVisible(window)) windows.push_back(window);
    }
    return windows;
}

/// Draws a whole window at its place in a picture of the screen that begins at `origin`.
void CopyWindow(TCanvas& canvas, HWND window, TPoint origin) {
    RECT place{};
    ::GetWindowRect(window, &place);
    const TWindowDC source = TWindowDC::OfWholeWindow(window);
    ::BitBlt(canvas.GetHandle(), static_cast<int>(place.left) - origin.X,
             static_cast<int>(place.top) - origin.Y, static_cast<int>(place.right - place.left),
             static_cast<int>(place.bottom - place.top), source.Get(), 0, 0, SRCCOPY);
}

/// What the window shows now, with what the program has opened above it.
void WriteWindow(TMainForm& form, const String& path) {
    TBitmap picture(form.GetWidth(), form.GetHeight(), pf24bit);
    const TPoint origin{form.GetLeft(), form.GetTop()};
    CopyWindow(picture.GetCanvas(), form.GetHandle(), origin);
    for (const HWND window : WindowsAbove(form.GetHandle()))
        CopyWindow(picture.GetCanvas(), window, origin);
    TPngImage png;
    png.Assign(&picture);
    png.SaveToFile(path);
    std::printf("%s\n", ToUtf8(path).c_str());
    std::fflush(stdout);
}

}  // namespace

void WriteShots(TMainForm& form, const String& folder) {
    std::filesystem::create_directories(folder);
    int index = 0;
    for (const TPageInfo& page : GalleryPages()) {
        form.OpenPage(index++);
        form.SetActiveControl(nullptr);  // a focus frame would show in every picture
        const int count = form.CurrentPage().ShotCount();
        for (int shot = 0; shot < count; ++shot) {
            const String number = count == 1 ? String() : L"-" + IntToStr(shot + 1);
            form.CurrentPage().TakeShot(
                shot, [&] { WriteWindow(form, folder + L"\\" + page.FileName + number + L".png"); });
        }
    }
}

}  // namespace gallery
