#include "designer/model/Naming.h"

namespace designer {

String FreeName(StringView className, const std::function<bool(const String&)>& isTaken) {
    if (className.size() > 1 && className.front() == L'T') className.remove_prefix(1);
    for (int number = 1;; ++number) {
        String name = String(className) + IntToStr(number);
        if (!isTaken(name)) return name;
    }
}

String FreeName(StringView className, const TComponent& root) {
    return FreeName(className, [&root](const String& name) {
        return SameText(name, root.GetName()) || root.FindComponent(name) != nullptr;
    });
}

}  // namespace designer
