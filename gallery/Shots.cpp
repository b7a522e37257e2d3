#include "gallery/Shots.h"

#include <cstdio>
#include <filesystem>

#include "platform/vcl/forms/Application.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Png.h"

namespace gallery {
namespace {

/// What the window shows now, without what may lie above it.
void WriteWindow(TMainForm& form, const String& path) {
    TBitmap picture(form.GetWidth(), form.GetHeight(), pf24bit);
    {
        const TWindowDC window = TWindowDC::OfWholeWindow(form.GetHandle());
        BitBlt(picture.GetCanvas().GetHandle(), 0, 0, picture.GetWidth(), picture.GetHeight(), window.Get(),
               0, 0, SRCCOPY);
    }
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
        const int count = form.CurrentPage().ShotCount();
        for (int shot = 0; shot < count; ++shot) {
            Application().ProcessMessages();
            form.CurrentPage().PrepareShot(shot);
            Application().ProcessMessages();
            const String number = count == 1 ? String() : L"-" + IntToStr(shot + 1);
            WriteWindow(form, folder + L"\\" + page.FileName + number + L".png");
        }
    }
}

}  // namespace gallery
