#pragma once

namespace vcl {

class TCustomForm;
class TWindowMenu;

/// Whether the form's menu stands in the bar of the main form instead of one of its own: it merges by itself
/// (`AutoMerge`), and there is another form, the main one, that has a menu. Not for modal forms, whose main
/// form can't be reached, and at design time.
[[nodiscard]] bool MergesIntoMainForm(const TCustomForm& form);
/// Shows the form's menu in the bar of the main form, when it merges, in place of what is merged there.
void MergeFormMenu(const TCustomForm& form);
/// Takes a menu of the form out of the bar of the main form.
void UnmergeFormMenu(const TWindowMenu* menu);
/// Takes what merged by itself out of the bar of the main form, before there is another one.
void EndMergingMenus();
/// Lets all forms decide anew where their menus stand: the main form has got another menu, or there is
/// another main form.
void ReviewMergedMenus();

}  // namespace vcl
