#pragma once

#include "platform/vcl/forms/Application.h"

namespace vcl {

/// Hears the application's events beside others: any number of these objects may stand on forms. They are
/// called before the event of the application itself, the youngest first. Events that answer stop at the
/// first that handled them.
class TApplicationEvents : public TComponent, public TApplicationEventSet {
public:
    explicit TApplicationEvents(TComponent* AOwner);
    ~TApplicationEvents() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
