#pragma once

#include "platform/vcl/stdctrls/ComboBox.h"

namespace vcl {

/// The entries of a combo box: they are kept here, and the window shows a copy. A part of the combo box.
class TCustomComboBox::TItems final : public TStringList {
public:
    explicit TItems(TCustomComboBox& box) : FBox(box) { Duplicates = dupAccept; }

    void Put(int index, const String& text) override;
    void InsertObject(int index, const String& text, TObject* object) override;
    int AddObject(const String& text, TObject* object) override;
    void Delete(int index) override;
    void Clear() override;
    void Move(int currentIndex, int newIndex) override;
    void Exchange(int a, int b) override;

protected:
    void SetUpdateState(bool updating) override;

private:
    void Show(int index, const String& text);

    TCustomComboBox& FBox;
};

}  // namespace vcl
