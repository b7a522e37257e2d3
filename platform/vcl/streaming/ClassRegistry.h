#pragma once

#include <initializer_list>
#include <vector>

#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

// Classes by name, for readers of form files and for designers. A class belongs to the module (DLL or
// program) that its description lives in; a module that is going to be unloaded takes its classes out with
// `UnRegisterModuleClasses`.

using TClassList = std::vector<const TMetaClass*>;

/// Makes the class known by its name; again is a no-op. Raises EFilerError "A class named <name> already
/// exists" when another class has the name.
void RegisterClass(const TMetaClass& classType);
void RegisterClasses(std::initializer_list<const TMetaClass*> classes);
/// Takes the class out of the registry and off all pages; a no-op when it is not there.
void UnRegisterClass(const TMetaClass& classType);
/// The same for every class of a module.
void UnRegisterModuleClasses(HINSTANCE module);

/// The registered class of that name, or null; ignores case.
[[nodiscard]] const TMetaClass* GetClass(StringView name);
/// The same, raising EClassNotFound "Class <name> not found".
[[nodiscard]] const TMetaClass& FindClass(StringView name);
/// All registered classes in the order of their registration.
[[nodiscard]] TClassList RegisteredClasses();

/// Registers the classes and shows them on a page of the designer's palette, after those that stand there
/// already.
void RegisterComponents(const String& page, std::initializer_list<const TMetaClass*> classes);

/// One page of the designer's palette.
struct TRegisteredPage {
    String Name;
    TClassList Classes;  ///< In the order of their registration.
};
/// All pages in the order of their first registration; none is empty.
[[nodiscard]] std::vector<TRegisteredPage> RegisteredPages();
/// The module that a class belongs to: where its palette icon is found.
[[nodiscard]] HINSTANCE ModuleOfClass(const TMetaClass& classType);

}  // namespace vcl
