#pragma once

#include "platform/vcl/core/Object.h"

namespace vcl {

class TFiler;

/// An object that can be assigned to others of its kind and whose published properties form files can hold.
class TPersistent : public TObject {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Takes over the contents of `source` (null clears where the class allows it). The default asks the
    /// source to assign itself here; raises EConvertError "Cannot assign a <source> to a <class>" when
    /// neither knows how.
    virtual void Assign(const TPersistent* source);

    /// The object that this one belongs to, or null.
    [[nodiscard]] virtual TPersistent* GetOwner() const { return nullptr; }
    /// How a designer names the object: from the name of the component that it belongs to, such as
    /// "Bar.Items[2]".
    [[nodiscard]] virtual String GetNamePath() const;

protected:
    friend class TReader;
    friend class TWriter;

    /// Names what form files hold of the object beside its published properties, such as the bytes of a
    /// picture. Overrides call the ancestor's first.
    virtual void DefineProperties(TFiler&) {}
    /// The other half of `Assign`: writes this object's contents into `dest`.
    virtual void AssignTo(TPersistent* dest) const;

private:
    [[noreturn]] void RaiseAssignError(const TPersistent* source) const;
};

}  // namespace vcl
