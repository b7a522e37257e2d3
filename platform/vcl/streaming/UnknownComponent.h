#pragma once

#include "platform/vcl/core/Component.h"
#include "platform/vcl/streaming/FormDocument.h"

namespace vcl {

/// Stands for an object of a form file that could not be made, with all that the file holds in it: a writer
/// puts it back unchanged. Its name is that of the object.
class TUnknownComponent final : public TComponent {
public:
    /// `parent` is the component that the object is nested in, `index` its place among the objects there.
    TUnknownComponent(TComponent* AOwner, TComponent* parent, int index, TFormObject object);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] const TFormObject& GetObject() const { return FObject; }
    /// The same to be changed; its name is changed by `SetName`.
    [[nodiscard]] TFormObject& GetObject() { return FObject; }
    void SetName(const String& value) override;
    [[nodiscard]] int GetIndex() const { return FIndex; }
    /// Null when that component has been freed.
    [[nodiscard]] TComponent* GetParentComponent() const override { return FParent; }
    [[nodiscard]] bool HasParent() const override { return true; }

protected:
    void Notification(TComponent* component, TOperation operation) override;

private:
    TFormObject FObject;
    TComponent* FParent;
    int FIndex;
};

}  // namespace vcl
