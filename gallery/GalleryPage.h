#pragma once

#include <functional>
#include <span>

#include "gallery/Namespace.h"
#include "platform/vcl/controls/CustomControl.h"

namespace gallery {

/// One page of the gallery: shows a piece of the package in all its states. A page is made when it is first
/// opened and lives as long as the window.
class TGalleryPage : public TCustomControl {
public:
    /// White, double buffered, filling the content area.
    explicit TGalleryPage(TComponent* AOwner);

    /// How many pictures show the whole page; the default is one. A page that has states which only the mouse
    /// or the time brings about shows picture n of them after `PrepareShot(n)`.
    [[nodiscard]] virtual int ShotCount() const { return 1; }
    virtual void PrepareShot(int) {}
    /// Calls `take` once while picture n can be seen. Pages override it whose pictures show what the user
    /// holds open, such as menus; `take` also takes the windows that lie above the page's.
    virtual void TakeShot(int shot, const std::function<void()>& take);

protected:
    /// Pixels that headings and most contents keep off the page's left and right edge.
    static constexpr int Margin = 24;
    /// The heading of a part of the page, from margin to margin. Returns the vertical position where the
    /// part's contents start.
    int DrawPartHeading(int top, StringView text);
};

/// What the navigation shows of a page, and how to make it.
struct TPageInfo {
    const wchar_t* Section;   ///< Heading under which it stands; the same for neighbours.
    const wchar_t* Title;     ///< For people.
    const wchar_t* FileName;  ///< Name of its pictures, without number and extension.
    const wchar_t* Summary;   ///< A sentence under the title.
    TGalleryPage* (*Create)(TComponent* owner);
};

/// All pages in the order of the navigation.
[[nodiscard]] std::span<const TPageInfo> GalleryPages();

}  // namespace gallery
