#include "platform/vcl/controls/MessageFilter.h"

#include <algorithm>
#include <vector>

namespace vcl {
namespace {

std::vector<TMessageFilter*>& Filters() {
    static std::vector<TMessageFilter*> filters;
    return filters;
}

}  // namespace

TMessageFilter::~TMessageFilter() {
    Remove();
}

void TMessageFilter::Install() {
    Remove();
    Filters().push_back(this);
}

void TMessageFilter::Remove() {
    std::erase(Filters(), this);
}

bool TMessageFilter::IsInstalled() const {
    return std::find(Filters().begin(), Filters().end(), this) != Filters().end();
}

bool OfferToMessageFilters(MSG& message) {
    if (Filters().empty()) return false;
    const std::vector<TMessageFilter*> filters = Filters();
    for (auto filter = filters.rbegin(); filter != filters.rend(); ++filter) {
        const auto& living = Filters();
        const bool lives = std::find(living.begin(), living.end(), *filter) != living.end();
        if (lives && (*filter)->FilterMessage(message)) return true;
    }
    return false;
}

}  // namespace vcl
