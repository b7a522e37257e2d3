#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Geometry.h"

namespace vcl {
class TControl;
class TCustomForm;
class TEventBase;
class TPublishedProperty;
class TWinControl;
}  // namespace vcl

namespace test {

/// An event of a living scene, whatever its arguments are.
struct SceneEvent {
    std::string Name;
    /// Has the event call the action. Questions that the event asks (may it be dropped here?) are answered
    /// with yes.
    std::function<void(std::function<void()> action)> Bind;
};

/// The published event of an object as one of a scene; the object must live when it is bound.
[[nodiscard]] SceneEvent EventOf(const vcl::TPublishedProperty& row, vcl::TObject& object);

/// A form as a program has it: a component of a class on a panel (or a form of that class), read from a form
/// file, filled with something to click on, and an edit beside it. Its parts may be freed by anyone; what
/// is left goes with the scene.
class LivingScene {
public:
    explicit LivingScene(const vcl::TMetaClass& meta);
    ~LivingScene();
    LivingScene(const LivingScene&) = delete;
    LivingScene& operator=(const LivingScene&) = delete;

    /// Shows the form and handles the messages of that.
    void Show();
    /// Each is null once it has been freed.
    [[nodiscard]] vcl::TCustomForm* Form() const;
    [[nodiscard]] vcl::TWinControl* Place() const;
    [[nodiscard]] vcl::TWinControl* Other() const;
    [[nodiscard]] vcl::TComponent* Subject() const;
    [[nodiscard]] vcl::TControl* Control() const;
    /// Where the user would point to reach the component: it, or the panel.
    [[nodiscard]] vcl::TControl* Target() const;
    /// The pixel of the screen where the item is that has events, or the middle of the target.
    [[nodiscard]] vcl::TPoint Spot() const;
    /// The published events of the component, and those of an item of what it was filled with.
    [[nodiscard]] std::vector<SceneEvent> Events() const;

private:
    class Watch;
    std::unique_ptr<Watch> FWatch;
    std::vector<SceneEvent> FItemEvents;
    std::function<vcl::TPoint()> FSpot;
};

}  // namespace test
