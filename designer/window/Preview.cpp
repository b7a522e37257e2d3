#include "designer/window/Preview.h"

#include "platform/vcl/forms/Form.h"
#include "platform/vcl/streaming/Reader.h"

namespace designer {

void RunPreview(const TFormDocument& document) {
    TForm form(nullptr);
    TReader reader(document);
    // The host's methods are not here.
    reader.OnFindMethod = [](const String&, TPersistent&, TEventBase&) { return true; };
    reader.ReadRootComponent(&form);
    // What the file says about being visible would stand in the way of showing it as a dialog.
    form.Hide();
    form.ShowModal();
}

}  // namespace designer
