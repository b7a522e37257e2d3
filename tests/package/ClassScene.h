#pragma once

#include <memory>
#include <set>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/streaming/ClassRegistry.h"

namespace test {

/// All registered classes of which components can be made, those of the framework and of the package.
vcl::TClassList CreatableClasses();

/// A form with a component of a class on it (or a form of that class) and with components to be referred to.
struct ClassScene {
    explicit ClassScene(const vcl::TMetaClass& meta);

    std::unique_ptr<vcl::TComponent> Root;
    vcl::TComponent* Subject;

    /// The same component of a form that has been read.
    static vcl::TComponent& SubjectOf(vcl::TComponent& root);

private:
    vcl::TComponent& Add(const vcl::TMetaClass& meta, const vcl::String& name);
    void AddTargets(const vcl::TMetaClass& meta);

    std::set<const vcl::TMetaClass*> FSeen;
};

}  // namespace test
