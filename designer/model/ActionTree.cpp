#include "designer/model/ItemTree.h"
#include "designer/model/Naming.h"
#include "platform/vcl/actions/Action.h"
#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/core/MetaClass.h"

namespace designer {
namespace {

class TActionTree final : public TItemTree {
public:
    TActionTree(TDesignDocument& document, String list) : TItemTree(document), FName(std::move(list)) {}
    [[nodiscard]] String Title() const override { return L"Aktionen von " + FName; }
    [[nodiscard]] bool CanNest() const override { return false; }

protected:
    [[nodiscard]] std::vector<TPersistent*> Children(TPersistent*) const override {
        std::vector<TPersistent*> children;
        const TCustomActionList* list = List();
        for (int i = 0; list && i < list->GetActionCount(); ++i)
            children.push_back(list->GetAction(i));
        return children;
    }

    void Describe(TItemEntry& entry) const override {
        const auto& contained = static_cast<const TContainedAction&>(*entry.Object);
        const auto* action = dynamic_cast<const TCustomAction*>(&contained);
        entry.Text = action && !action->GetCaption().empty() ? action->GetCaption() : contained.GetName();
        if (action) entry.Note = ShortCutToText(action->GetShortCut());
    }

    TPersistent* Create(TPersistent*) override {
        TCustomActionList* list = List();
        if (!list) throw EInvalidOperation(Format(L"Es gibt keine Liste '%s'", FName));
        TDesignRoot& root = Document().Root();
        auto* action = new TAction(&root);
        action->SetName(FreeName(TAction::StaticClass().ClassName(), root));
        action->SetActionList(list);
        return action;
    }

    void Erase(TPersistent& item) override { static_cast<TContainedAction&>(item).Free(); }

    bool Put(TPersistent& item, TPersistent*, int place) override {
        static_cast<TContainedAction&>(item).SetIndex(place);
        return true;
    }

    void SetText(TPersistent& item, const String& text) override {
        if (auto* action = dynamic_cast<TCustomAction*>(&item)) action->SetCaption(text);
    }

private:
    [[nodiscard]] TCustomActionList* List() const {
        return dynamic_cast<TCustomActionList*>(Document().Root().FindComponent(FName));
    }

    String FName;
};

}  // namespace

std::unique_ptr<TItemTree> MakeActionTree(TDesignDocument& document, const String& list) {
    return std::make_unique<TActionTree>(document, list);
}

}  // namespace designer
