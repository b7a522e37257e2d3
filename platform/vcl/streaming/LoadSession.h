#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/streaming/FormErrors.h"

namespace vcl {

/// The components that are completed together: those of a form file, and of the files of the frames in it. It
/// forgets those that are freed meanwhile.
class TLoadSession final : public TComponent {
public:
    struct TEntry {
        TComponent* Component;  ///< Null when it has been freed.
        TFormPosition Position;
        std::shared_ptr<const String> FileName;
        bool Created;  ///< Made by the reader, which frees it when reading fails.
    };

    TLoadSession() : TComponent(nullptr) {}
    ~TLoadSession() override;

    /// Marks a component as being loaded and notes that it has to be completed, once.
    void Add(const TEntry& entry);
    /// In the order in which they were added.
    [[nodiscard]] const std::vector<TEntry>& Entries() const { return FEntries; }
    /// Calls `Loaded` of each component. What it raises goes to `report`, or comes out when the component is
    /// no more; paths begin at `root`.
    void Complete(const TComponent& root, const std::function<void(TFormProblem)>& report);
    /// Frees what was created, from the end down to the entry `first`, and gives up the rest of them.
    void Abandon(std::size_t first);

    /// While it lives, a reader whose root belongs to `owner` joins the session: the root is a frame that is
    /// being made for the session's form.
    class TInlineScope {
    public:
        TInlineScope(TLoadSession& session, const TComponent* owner);
        ~TInlineScope();
        TInlineScope(const TInlineScope&) = delete;
        TInlineScope& operator=(const TInlineScope&) = delete;

    private:
        friend class TLoadSession;
        TLoadSession& FSession;
        const TComponent* FOwner;
        TInlineScope* FOuter;
    };
    /// The session that a reader of `root` joins; null when it is to have its own.
    [[nodiscard]] static TLoadSession* ToJoin(const TComponent& root);

protected:
    void Notification(TComponent* component, TOperation operation) override;

private:
    std::vector<TEntry> FEntries;
};

}  // namespace vcl
