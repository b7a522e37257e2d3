#pragma once

#include <vector>

#include "platform/vcl/streaming/FormErrors.h"

namespace vcl {

/// Where a parser or reader is in the tree of a form file; makes problems that name the place. What it is
/// told of must outlive its scope: names are put together only when something is wrong.
class TFormPlace {
public:
    explicit TFormPlace(String fileName) : FFileName(std::move(fileName)) {}

    [[nodiscard]] TFormProblem Problem(TFormProblemKind kind, TFormPosition position, String text) const;
    [[noreturn]] void Fail(TFormProblemKind kind, TFormPosition position, String text) const;

    /// Enters an object, a property or an item of a collection for the time of its life.
    class TScope {
    public:
        TScope(TFormPlace& place, const TFormObject& object) : TScope(place, TStep{&object, {}, 0}) {}
        TScope(TFormPlace& place, StringView property) : TScope(place, TStep{nullptr, property, 0}) {}
        TScope(TFormPlace& place, std::size_t item) : TScope(place, TStep{nullptr, {}, item}) {}
        ~TScope() { FPlace.FSteps.pop_back(); }
        TScope(const TScope&) = delete;
        TScope& operator=(const TScope&) = delete;

    private:
        friend class TFormPlace;
        struct TStep {
            const TFormObject* Object;
            StringView Property;
            std::size_t Item;
        };
        TScope(TFormPlace& place, const TStep& step) : FPlace(place) { place.FSteps.push_back(step); }
        TFormPlace& FPlace;
    };

private:
    String FFileName;
    std::vector<TScope::TStep> FSteps;
};

}  // namespace vcl
