#pragma once

#include "platform/vcl/core/Strings.h"

namespace vcl {

class TMetaClass;

/// The root of the class tree. In builds with the ledger every living object is known to it by class.
class TObject {
public:
    TObject();
    virtual ~TObject();
    TObject(const TObject&) = delete;
    TObject& operator=(const TObject&) = delete;

    /// The description of the object's class: name, ancestor, published properties. Every class that form
    /// files or messages name overrides it, beside a static `StaticClass()`.
    [[nodiscard]] virtual const TMetaClass& ClassType() const;
    [[nodiscard]] static const TMetaClass& StaticClass();
    /// The name of the class, with its leading T.
    [[nodiscard]] String ClassName() const;
    /// True when the object's class is `ancestor` or descends from it.
    [[nodiscard]] bool InheritsFrom(const TMetaClass& ancestor) const;
};

}  // namespace vcl
