#include "tools/dfm/Tree.h"

namespace dfm {
namespace {

const wchar_t* KindText(TFormObjectKind kind) {
    switch (kind) {
        case TFormObjectKind::Inherited:
            return L"inherited ";
        case TFormObjectKind::Inline:
            return L"inline ";
        default:
            return L"";
    }
}

void AddObject(String& tree, const TFormObject& object, std::size_t depth) {
    tree.append(depth * 2, L' ').append(KindText(object.Kind));
    if (!object.Name.empty()) tree += object.Name + L": ";
    tree += object.ClassName + L"\r\n";
    for (const TFormObject& child : object.Children)
        AddObject(tree, child, depth + 1);
}

}  // namespace

std::string TreeOf(const TFormDocument& document) {
    String tree;
    AddObject(tree, document.Root, 0);
    return ToUtf8(tree);
}

}  // namespace dfm
