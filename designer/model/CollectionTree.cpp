#include "designer/model/ItemTree.h"
#include "platform/vcl/core/Collection.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/core/PublishedProperty.h"

namespace designer {
namespace {

/// The first collection that the object publishes, or null.
TCollection* CollectionIn(const TPersistent& object) {
    for (const TPublishedProperty* row : object.ClassType().AllProperties()) {
        if (row->Kind() != TPropertyKind::Nested) continue;
        if (auto* held = dynamic_cast<TCollection*>(std::get<TPersistent*>(row->Get(object)))) return held;
    }
    return nullptr;
}

class TCollectionTree final : public TItemTree {
public:
    TCollectionTree(TDesignDocument& document, String component, String property)
        : TItemTree(document), FComponent(std::move(component)), FProperty(std::move(property)) {}
    [[nodiscard]] String Title() const override { return FComponent + L"." + FProperty; }

protected:
    [[nodiscard]] std::vector<TPersistent*> Children(TPersistent* parent) const override {
        std::vector<TPersistent*> children;
        const TCollection* collection = CollectionOf(parent);
        for (int i = 0; collection && i < collection->GetCount(); ++i)
            children.push_back(collection->GetItem(i));
        return children;
    }

    void Describe(TItemEntry& entry) const override {
        const auto& item = static_cast<const TCollectionItem&>(*entry.Object);
        entry.Text = item.GetDisplayName();
        entry.Note = Format(L"%d", item.GetIndex());
    }

    TPersistent* Create(TPersistent* parent) override {
        TCollection* collection = CollectionOf(parent);
        if (!collection) throw EInvalidOperation(Format(L"In %s passt kein Eintrag", Title()));
        return collection->Add();
    }

    void Erase(TPersistent& item) override {
        const auto& erased = static_cast<TCollectionItem&>(item);
        erased.GetCollection()->Delete(erased.GetIndex());
    }

    bool Put(TPersistent& item, TPersistent* parent, int place) override {
        auto& moved = static_cast<TCollectionItem&>(item);
        TCollection* collection = CollectionOf(parent);
        if (!collection || &collection->GetItemClass() != &moved.GetCollection()->GetItemClass())
            return false;
        if (collection != moved.GetCollection()) moved.SetCollection(collection);
        moved.SetIndex(place);
        return true;
    }

    void SetText(TPersistent& item, const String& text) override {
        const TPublishedProperty* caption = item.ClassType().FindProperty(L"Caption");
        if (caption && caption->Kind() == TPropertyKind::String)
            caption->Set(item, text);
        else
            static_cast<TCollectionItem&>(item).SetDisplayName(text);
    }

private:
    [[nodiscard]] TCollection* CollectionOf(TPersistent* parent) const {
        if (parent) return CollectionIn(*parent);
        const TDesignRoot& root = Document().Root();
        const TPersistent* holder =
            SameText(FComponent, root.GetName()) ? &root : root.FindComponent(FComponent);
        const TPublishedProperty* row = holder ? holder->ClassType().FindProperty(FProperty) : nullptr;
        if (!row || row->Kind() != TPropertyKind::Nested) return nullptr;
        return dynamic_cast<TCollection*>(std::get<TPersistent*>(row->Get(*holder)));
    }

    String FComponent;
    String FProperty;
};

}  // namespace

std::unique_ptr<TItemTree> MakeCollectionTree(TDesignDocument& document, const String& component,
                                              const String& property) {
    return std::make_unique<TCollectionTree>(document, component, property);
}

}  // namespace designer
