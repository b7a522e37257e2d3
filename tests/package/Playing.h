#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/package/LivingScene.h"
#include "tests/support/EventGenerator.h"

namespace test {

/// Text of the errors that handlers raise in tests.
inline constexpr const wchar_t* HandlerErrorText = L"Raised by a handler";

/// What a step works with.
struct Play {
    LivingScene& Scene;
    EventGenerator& Input;
    /// Whether what the step is played for has happened, so that it need not wait for more.
    std::function<bool()> Done;
};

/// Something that a user, a program or the system does with a scene. Parts of the scene may go meanwhile.
struct Step {
    std::string Name;
    std::function<void(const Play&)> Run;
};

/// Places on the target, in pixels of the screen, that differ in what lies there: an item, edges, where
/// buttons are. The index is less than `PlaceCount()`.
[[nodiscard]] int PlaceCount();
[[nodiscard]] POINT PlaceOn(const LivingScene& scene, int index);

/// Whether other windows lie on the control wherever steps point.
[[nodiscard]] bool IsCovered(const LivingScene& scene);

/// All steps, each whole in itself, on a form that is shown. The first one does nothing but to show it.
[[nodiscard]] const std::vector<Step>& Steps();

/// Until the steps of `Later` are dropped: leaves menus as soon as one is open, and any other loop that runs
/// too long. Those of the system's scroll bars wait for the button.
void RescueLater(int attempt = 0);

/// Shows the scene, says so, and runs the step. Menus and other modal loops that it opens are left by Escape.
void RunStep(const Step& step, const Play& play, const std::function<void()>& shown);

/// The system keeps fonts, pens and regions of its own for frames, menus and windows side by side. For
/// `LedgerTest::BeforeSnapshots`.
void WarmUpScenes();

}  // namespace test
