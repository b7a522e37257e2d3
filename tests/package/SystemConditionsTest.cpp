#include <vector>

#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/graphics/Handles.h"
#include "tests/package/ClassScene.h"
#include "tests/package/Playing.h"
#include "tests/support/CalendarFonts.h"
#include "tests/support/FormTest.h"
#include "tests/support/FreedMemory.h"

// What the system may do to every class that is registered: take the mouse away in the middle of a press,
// tell of changes, run out of handles.

namespace test {
namespace {

using namespace vcl;

class SystemConditions : public FormTest, public testing::WithParamInterface<const TMetaClass*> {
public:
    static void SetUpTestSuite() { BeforeSnapshots(WarmUpScenes); }

protected:
    void TearDown() override {
        FormTest::TearDown();
        EXPECT_EQ(FreedMemory::WrittenBlocks(), 0) << "blocks written to after they were freed";
    }

    CalendarFonts FCalendarFonts;
    FreedMemory FGuard;
};

/// The window that has the mouse, or the one that the user sees under it.
HWND PressedWindow() {
    if (HWND captured = GetCapture()) return captured;
    POINT point;
    GetCursorPos(&point);
    return WindowFromPoint(point);
}

TEST_P(SystemConditions, APressEndsWithWhatTheSystemDoes) {
    const std::vector<std::function<void(LivingScene&)>> conditions{
        [](LivingScene&) { SendMessageW(PressedWindow(), WM_CANCELMODE, 0, 0); },
        [](LivingScene&) { ReleaseCapture(); },
        [](LivingScene& scene) { SetCapture(scene.Other()->GetHandle()); },
        [](LivingScene& scene) { scene.Target()->SetEnabled(false); },
        [](LivingScene& scene) { scene.Target()->SetVisible(false); },
        [](LivingScene& scene) { scene.Form()->Hide(); },
        [](LivingScene&) { SetActiveWindow(Application().GetHandle()); },
    };
    for (int place = 0; place < PlaceCount(); ++place)
        for (std::size_t i = 0; i < conditions.size(); ++i) {
            SCOPED_TRACE("place " + std::to_string(place) + ", condition " + std::to_string(i));
            LivingScene scene(*GetParam());
            scene.Show();
            const POINT point = PlaceOn(scene, place);
            // Scroll bars of the system wait for the button in a loop of their own.
            RescueLater();
            Input.MoveTo(point);
            Input.Press();
            Input.MoveTo({point.x + 12, point.y + 3});
            conditions[i](scene);
            PumpAll();
            ReleaseCapture();
            EXPECT_EQ(GetDragObject(), nullptr);
            Input.Release();
            Input.MoveTo(point);
            PumpAll();
            DropSteps();
        }
}

TEST_P(SystemConditions, ChangesAreTakenNote) {
    LivingScene scene(*GetParam());
    scene.Show();
    std::vector<HWND> windows{scene.Form()->GetHandle()};
    EnumChildWindows(
        windows[0],
        [](HWND child, LPARAM list) -> BOOL {
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    RECT suggested{30, 30, 500, 400};
    for (const HWND window : windows) {
        for (const UINT message : {WM_SETTINGCHANGE, WM_SYSCOLORCHANGE, WM_FONTCHANGE, WM_THEMECHANGED,
                                   WM_DISPLAYCHANGE, WM_TIMECHANGE, WM_INPUTLANGCHANGE, WM_CANCELMODE})
            SendMessageW(window, message, 0, 0);
        SendMessageW(window, WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"intl"));
        SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));
        PumpAll();
    }
    EXPECT_TRUE(SendMessageW(windows[0], WM_QUERYENDSESSION, 0, 0));
    SendMessageW(windows[0], WM_ENDSESSION, FALSE, 0);
    RedrawWindow(windows[0], nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_TRUE(IsWindowVisible(windows[0]));
}

/// While it exists, only so many GDI handles are to be had.
class FewHandles {
public:
    explicit FewHandles(std::size_t left) {
        while (HGDIOBJ pen = CreatePen(PS_SOLID, 1, 0x00123456))
            FTaken.push_back(pen);
        for (; left > 0 && !FTaken.empty(); --left) {
            DeleteObject(FTaken.back());
            FTaken.pop_back();
        }
    }
    ~FewHandles() {
        for (const HGDIOBJ pen : FTaken)
            DeleteObject(pen);
    }
    FewHandles(const FewHandles&) = delete;
    FewHandles& operator=(const FewHandles&) = delete;
    [[nodiscard]] std::size_t Taken() const { return FTaken.size(); }

private:
    std::vector<HGDIOBJ> FTaken;
};

TEST_P(SystemConditions, PaintingWithoutHandlesIsAnErrorOfTheFramework) {
    LivingScene scene(*GetParam());
    scene.Show();
    const HWND window = scene.Form()->GetHandle();
    const auto paint = [window] {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    };
    for (const std::size_t left : {0, 1, 2, 3, 4, 6, 9, 14, 20}) {
        SCOPED_TRACE(std::to_string(left) + " handles");
        const FewHandles few(left);
        ASSERT_GT(few.Taken(), 1000U);
        paint();
        try {
            scene.Target()->Repaint();
        } catch (const Exception& error) {
            EXPECT_STRNE(error.what(), "");
        }
        for (const std::string& error : Errors)
            EXPECT_FALSE(error.starts_with("std::exception")) << error;
        Errors.clear();
    }
    paint();
    EXPECT_EQ(Errors, std::vector<std::string>()) << "when there are handles again";
}

TClassList ClassesOfThePackage() {
    TClassList classes = CreatableClasses();
    std::erase_if(classes, [](const TMetaClass* meta) {
        return !String(meta->ClassName()).starts_with(L"TQV7") && meta != &TForm::StaticClass();
    });
    return classes;
}

INSTANTIATE_TEST_SUITE_P(Registered, SystemConditions, testing::ValuesIn(ClassesOfThePackage()),
                         [](const auto& info) { return ToUtf8(info.param->ClassName()); });

}  // namespace
}  // namespace test
