#pragma once

#include <optional>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/streaming/FormDocument.h"

namespace vcl {

/// Stands for an object of a form file that could not be made, with all that the file holds in it: a writer
/// puts it back unchanged. Its name and its `Tag` are those of the object.
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

    /// A whole number that the file holds in the object; 0 when there is none of that name.
    [[nodiscard]] std::int64_t GetNumber(StringView name) const;
    /// Changes such a number, or adds one that is not 0.
    void SetNumber(const wchar_t* name, std::int64_t value);

    /// Takes in what the file of a form says about this object, which an ancestor of that form has brought
    /// along.
    void Override(const TFormObject& changes, int index);
    /// What such a file has to say when the ancestor's object is `inherited`; none when nothing differs.
    [[nodiscard]] std::optional<TFormObject> ChangesFrom(const TUnknownComponent& inherited) const;

protected:
    void Notification(TComponent* component, TOperation operation) override;

private:
    [[nodiscard]] std::int64_t GetTagInFile() const { return GetNumber(L"Tag"); }
    void SetTagInFile(std::int64_t value) { SetNumber(L"Tag", value); }

    TFormObject FObject;
    TComponent* FParent;
    int FIndex;
};

}  // namespace vcl
