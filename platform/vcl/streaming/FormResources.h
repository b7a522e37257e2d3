#pragma once

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/streaming/FormFiles.h"

namespace vcl {

class TStream;

// The short ways from form files to components and back. What goes wrong in a form file raises EFormError.
// A `root` is read into; without one it is made by its class.

/// Reads the form at the stream's position, in either format; a text takes all that is left. The position
/// stands behind it afterwards.
TComponent* ReadComponent(TStream& stream, TComponent* root = nullptr);
TComponent* ReadComponentFile(const String& fileName, TComponent* root = nullptr);
/// Reads a resource of type RCDATA. Raises EResNotFound "Resource <name> not found".
TComponent* ReadComponentRes(HINSTANCE module, const String& name, TComponent* root = nullptr);

void WriteComponent(TStream& stream, TComponent& root, TFormFormat format = TFormFormat::Binary);
void WriteComponentFile(const String& fileName, TComponent& root, TFormFormat format = TFormFormat::Text);

/// Reads the forms of the instance's class and of its ancestors up to, but without, `rootAncestor`, that of
/// the oldest class first: the resources of type RCDATA in the class's module, named after the class in
/// capitals. False when there is none.
///
/// A class calls it in its constructor and names the class that it derives from:
///
///     TLoginForm::TLoginForm(TComponent* AOwner) : TForm(AOwner) {
///         InitInheritedComponent(*this, TForm::StaticClass());
///     }
///
/// so each constructor of a chain reads what its own class adds. Components of an ancestor's form are
/// complete by then: their new properties take effect at once and `Loaded` is not called again; that of the
/// form itself is called for each of its classes.
bool InitInheritedComponent(TComponent& instance, const TMetaClass& rootAncestor);

}  // namespace vcl
