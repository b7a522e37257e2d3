#include "designer/model/ItemTree.h"
#include "designer/model/Naming.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/menus/Menu.h"

namespace designer {
namespace {

class TMenuTree final : public TItemTree {
public:
    TMenuTree(TDesignDocument& document, String menu) : TItemTree(document), FName(std::move(menu)) {}
    [[nodiscard]] String Title() const override { return L"Menü " + FName; }
    [[nodiscard]] bool HasSeparators() const override { return true; }

protected:
    [[nodiscard]] std::vector<TPersistent*> Children(TPersistent* parent) const override {
        std::vector<TPersistent*> children;
        const TMenuItem* top = ItemOf(parent);
        for (int i = 0; top && i < top->GetCount(); ++i)
            children.push_back(top->GetItem(i));
        return children;
    }

    void Describe(TItemEntry& entry) const override {
        const auto& item = static_cast<const TMenuItem&>(*entry.Object);
        entry.Text = item.GetCaption();
        entry.Note = ShortCutToText(item.GetShortCut());
        entry.IsSeparator = item.IsLine();
    }

    TPersistent* Create(TPersistent* parent) override {
        TMenuItem* top = ItemOf(parent);
        if (!top) throw EInvalidOperation(Format(L"Es gibt kein Menü '%s'", FName));
        TDesignRoot& root = Document().Root();
        auto* item = new TMenuItem(&root);
        item->SetName(FreeName(TMenuItem::StaticClass().ClassName(), root));
        top->Add(item);
        return item;
    }

    void Erase(TPersistent& item) override { static_cast<TMenuItem&>(item).Free(); }

    bool Put(TPersistent& item, TPersistent* parent, int place) override {
        auto& moved = static_cast<TMenuItem&>(item);
        TMenuItem* top = ItemOf(parent);
        moved.GetParent()->Remove(&moved);
        top->Insert(place, &moved);
        return true;
    }

    void SetText(TPersistent& item, const String& text) override {
        static_cast<TMenuItem&>(item).SetCaption(text);
    }

private:
    [[nodiscard]] TMenuItem* ItemOf(TPersistent* parent) const {
        if (parent) return static_cast<TMenuItem*>(parent);
        auto* menu = dynamic_cast<TMenu*>(Document().Root().FindComponent(FName));
        return menu ? &menu->GetItems() : nullptr;
    }

    String FName;
};

}  // namespace

std::unique_ptr<TItemTree> MakeMenuTree(TDesignDocument& document, const String& menu) {
    return std::make_unique<TMenuTree>(document, menu);
}

}  // namespace designer
