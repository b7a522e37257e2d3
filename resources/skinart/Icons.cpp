#include "resources/skinart/Catalogue.h"
#include "resources/skinart/IconSheet.h"

namespace skinart {

namespace {

using namespace vga;

/// The white rounded field in which every input control of the skin stands.
IconSheet& Field(IconSheet& sheet, int top) {
    return sheet.RoundFrame(1, top, 22, 9, kGrey, kWhite).Fill(2, top + 1, 20, 1, kSilver);
}

IconSheet& DropArrow(IconSheet& sheet, int left, int top) {
    return sheet.Pattern(left, top, {"KKKKK", ".KKK.", "..K.."});
}

/// The text "ab".
IconSheet& Letters(IconSheet& sheet, int left, int top) {
    return sheet.Pattern(left, top,
                         {"......K....",  //
                          ".KKK..K....",  //
                          "....K.KKKK.",  //
                          ".KKKK.K...K",  //
                          "K...K.K...K",  //
                          ".KKKK.KKKK."});
}

/// The dark glossy button.
IconSheet& Button(IconSheet& sheet) {
    return sheet.RoundFrame(1, 5, 22, 13, kBlack, kBlack).Fill(3, 6, 18, 1, kSilver).Fill(2, 7, 20, 2, kGrey);
}

/// Three grey lines that stand for text.
IconSheet& Lines(IconSheet& sheet, int left, int top, int width) {
    return sheet.Fill(left, top, width, 1, kGrey)
        .Fill(left, top + 2, width - 2, 1, kGrey)
        .Fill(left, top + 4, width - 1, 1, kGrey);
}

Picture DrawButton() {
    IconSheet sheet;
    Button(sheet).Pattern(7, 10,
                          {".WWW..W..W",  //
                           "W...W.W.W.",  //
                           "W...W.WW..",  //
                           "W...W.W.W.",  //
                           ".WWW..W..W"});
    return sheet.Finish();
}

Picture DrawButtonWithImage() {
    IconSheet sheet;
    Button(sheet)
        .Frame(3, 8, 8, 8, kWhite)
        .Fill(4, 9, 6, 6, kAqua)
        .Pattern(4, 9,
                 {"....YY",  //
                  "....YY",  //
                  ".G....",  //
                  "GGG..G",  //
                  "GGGGGG",  //
                  "GGGGGG"})
        .Fill(13, 10, 8, 1, kWhite)
        .Fill(13, 13, 6, 1, kWhite);
    return sheet.Finish();
}

Picture DrawCheckBox() {
    IconSheet sheet;
    sheet.Frame(1, 5, 13, 13, kGrey).Fill(2, 6, 11, 11, kWhite).Fill(2, 6, 11, 1, kSilver);
    sheet.Pattern(3, 7,
                  {"........B",  //
                   ".......BB",  //
                   "......BBB",  //
                   "B....BBB.",  //
                   "BB..BBB..",  //
                   "BBBBBB...",  //
                   ".BBBB....",  //
                   "..BB....."});
    Lines(sheet, 16, 9, 7);
    return sheet.Finish();
}

Picture DrawRadioButton() {
    IconSheet sheet;
    sheet.Pattern(1, 5,
                  {"....DDDDD....",  //
                   "..DDWWWWWDD..",  //
                   ".DWWWWWWWWWD.",  //
                   ".DWWWWWWWWWD.",  //
                   "DWWWWBBBWWWWD",  //
                   "DWWWBBBBBWWWD",  //
                   "DWWWBBBBBWWWD",  //
                   "DWWWBBBBBWWWD",  //
                   "DWWWWBBBWWWWD",  //
                   ".DWWWWWWWWWD.",  //
                   ".DWWWWWWWWWD.",  //
                   "..DDWWWWWDD..",  //
                   "....DDDDD...."});
    Lines(sheet, 16, 9, 7);
    return sheet.Finish();
}

Picture DrawEdit() {
    IconSheet sheet;
    sheet.RoundFrame(1, 6, 22, 12, kGrey, kWhite).Fill(2, 7, 20, 1, kSilver);
    Letters(sheet, 4, 9);
    sheet.Pattern(17, 8, {"B.B", ".B.", ".B.", ".B.", ".B.", ".B.", ".B.", "B.B"});
    return sheet.Finish();
}

Picture DrawComboBox() {
    IconSheet sheet;
    Field(sheet, 2).Fill(4, 6, 9, 1, kBlack);
    DropArrow(sheet, 16, 5);
    sheet.Frame(3, 11, 20, 11, kGrey).Fill(4, 12, 18, 9, kWhite);
    sheet.Fill(6, 13, 10, 1, kGrey)
        .Fill(4, 15, 18, 3, kBlue)
        .Fill(6, 16, 12, 1, kWhite)
        .Fill(6, 19, 8, 1, kGrey);
    return sheet.Finish();
}

Picture DrawComboBoxCustomDropDown() {
    IconSheet sheet;
    Field(sheet, 2).Fill(4, 6, 9, 1, kBlack);
    DropArrow(sheet, 16, 5);
    sheet.Frame(5, 11, 18, 11, kGrey).Fill(6, 12, 16, 9, kSilver).Fill(6, 12, 16, 2, kBlue);
    sheet.Fill(8, 15, 5, 4, kWhite).Fill(14, 15, 6, 1, kGrey).Fill(14, 17, 4, 1, kGrey);
    sheet.Pattern(17, 17, {"....K", "...KK", "..KKK", ".KKKK"});
    return sheet.Finish();
}

Picture DrawTreeComboBox() {
    IconSheet sheet;
    Field(sheet, 2).Fill(4, 6, 9, 1, kBlack);
    DropArrow(sheet, 16, 5);
    sheet.Frame(3, 11, 20, 12, kGrey).Fill(4, 12, 18, 10, kWhite);
    sheet.Pattern(5, 12,
                  {"..........",  //
                   "KKK.NNNNN.",  //
                   "K.K.......",  //
                   "KKK.......",  //
                   ".D........",  //
                   ".DDDD.BBBB",  //
                   ".D........",  //
                   ".D........",  //
                   ".DDDD.NNN.",  //
                   ".........."});
    return sheet.Finish();
}

Picture DrawDateTimePicker() {
    IconSheet sheet;
    sheet.Pattern(3, 1,
                  {"...KK........KK...",  //
                   ".KKWWKKKKKKKKWWKK.",  //
                   "KBBWWBBBBBBBBWWBBK",  //
                   "KBBKKBBBBBBBBKKBBK",  //
                   "KBBBBBBBBBBBBBBBBK",  //
                   "KWWWWWWWWWWWWWWWWK",  //
                   "KWWWWWDDWDDWDDWWLK",  //
                   "KWWWWWDDWDDWDDWWLK",  //
                   "KWWWWWWWWWWWWWWWLK",  //
                   "KWWDDWDDWBBWDDWWLK",  //
                   "KWWDDWDDWBBWDDWWLK",  //
                   "KWWWWWWWWWWWWWWWLK",  //
                   "KWWDDWDDWDDWWWWWLK",  //
                   "KWWDDWDDWDDWWWWWLK",  //
                   "KWWWWWWWWWWWWWWWLK",  //
                   "KWLLLLLLLLLLLLLLLK",  //
                   ".KKKKKKKKKKKKKKKK."});
    DropArrow(sheet, 9, 20);
    return sheet.Finish();
}

Picture DrawSpinEdit() {
    IconSheet sheet;
    sheet.RoundFrame(1, 5, 22, 14, kGrey, kWhite).Fill(2, 6, 20, 1, kSilver);
    sheet.Pattern(4, 8,
                  {"..K...KKK.",  //
                   ".KK..K...K",  //
                   "..K......K",  //
                   "..K.....K.",  //
                   "..K....K..",  //
                   "..K...K...",  //
                   ".KKK.KKKKK"});
    sheet.Fill(16, 6, 1, 12, kSilver);
    sheet.Pattern(17, 8, {"..B..", ".BBB.", "BBBBB", ".....", ".....", "BBBBB", ".BBB.", "..B.."});
    return sheet.Finish();
}

Picture DrawExplorerBar() {
    IconSheet sheet;
    sheet.Frame(4, 1, 16, 22, kGrey).Fill(5, 2, 14, 20, kWhite);
    const auto header = [&](int top) {
        sheet.Fill(4, top, 16, 5, kGrey).Fill(4, top, 16, 1, kBlack).Fill(4, top + 4, 16, 1, kBlack);
        sheet.Fill(6, top + 2, 7, 1, kWhite).Pattern(15, top + 1, {"W.W", ".W.", "..."});
    };
    header(1);
    sheet.Fill(7, 8, 8, 1, kBlue).Fill(7, 10, 6, 1, kBlue);
    header(12);
    sheet.Fill(7, 19, 9, 1, kBlue);
    return sheet.Finish();
}

Picture DrawGroupBox() {
    IconSheet sheet;
    sheet.RoundFrame(1, 5, 22, 17, kGrey, kWhite)
        .Fill(3, 3, 13, 7, kWhite)
        .Fill(3, 3, 13, 2, palette::kTransparent);
    Letters(sheet, 4, 2);
    sheet.Frame(4, 12, 3, 3, kGrey).Fill(9, 13, 10, 1, kGrey);
    sheet.Frame(4, 17, 3, 3, kGrey).Fill(9, 18, 8, 1, kGrey);
    return sheet.Finish();
}

Picture DrawPanel() {
    IconSheet sheet;
    sheet.RoundFrame(1, 4, 22, 16, kGrey, kSilver).Fill(2, 5, 20, 1, kWhite).Fill(2, 5, 1, 14, kWhite);
    sheet.Fill(7, 12, 10, 1, kGrey);
    return sheet.Finish();
}

/// A tab with rounded upper corners.
IconSheet& Tab(IconSheet& sheet, int left, int top, int width, int bottom, Rgb frame, Rgb inside) {
    sheet.Fill(left + 2, top, width - 4, 1, frame).Fill(left + 1, top + 1, width - 2, 1, frame);
    sheet.Fill(left, top + 2, width, bottom - top - 2, frame);
    sheet.Fill(left + 2, top + 1, width - 4, 1, inside);
    return sheet.Fill(left + 1, top + 2, width - 2, bottom - top - 2, inside);
}

Picture DrawSimpleTabControl() {
    IconSheet sheet;
    Tab(sheet, 12, 5, 10, 11, kGrey, kSilver);
    sheet.RoundFrame(1, 10, 22, 11, kGrey, kWhite);
    Tab(sheet, 1, 3, 12, 11, kBlack, kBlack).Fill(4, 7, 6, 1, kWhite).Fill(1, 10, 22, 1, kBlack);
    Lines(sheet, 4, 13, 12);
    return sheet.Finish();
}

Picture DrawTabControl() {
    IconSheet sheet;
    Tab(sheet, 15, 5, 8, 11, kGrey, kSilver);
    sheet.RoundFrame(1, 10, 22, 11, kGrey, kWhite);
    Tab(sheet, 1, 2, 15, 11, kBlack, kBlack).Fill(1, 10, 22, 1, kBlack);
    sheet.Fill(3, 7, 5, 1, kWhite).Pattern(10, 5, {"W...W", ".W.W.", "..W..", ".W.W.", "W...W"});
    Lines(sheet, 4, 13, 12);
    return sheet.Finish();
}

Picture DrawToolbar() {
    IconSheet sheet;
    sheet.RoundFrame(1, 6, 22, 12, kGrey, kSilver).Fill(2, 7, 20, 1, kWhite);
    sheet.Frame(3, 8, 8, 8, kBlue).Fill(4, 9, 6, 6, kWhite);
    sheet.Pattern(5, 9,
                  {"KKK.",  //
                   "KWKK",  //
                   "KWWK",  //
                   "KWWK",  //
                   "KKKK"});
    sheet.Pattern(12, 9,
                  {".YY...",  //
                   "YYYYYO",  //
                   "YOOOOO",  //
                   "YOOOO.",  //
                   "OOOO.."});
    sheet.Fill(18, 7, 1, 10, kGrey).Pattern(19, 9, {"K..", ".K.", "..K", ".K.", "K.."});
    return sheet.Finish();
}

}  // namespace

Catalogue DrawIcons() {
    Catalogue icons;
    icons.Add("TQV7SKINBUTTON", DrawButton());
    icons.Add("TQV7SKINBUTTONWITHIMAGE", DrawButtonWithImage());
    icons.Add("TQV7SKINCHECKBOX", DrawCheckBox());
    icons.Add("TQV7SKINCOMBOBOX", DrawComboBox());
    icons.Add("TQV7SKINCOMBOBOXCUSTOMDROPDOWN", DrawComboBoxCustomDropDown());
    icons.Add("TQV7SKINDATETIMEPICKER", DrawDateTimePicker());
    icons.Add("TQV7SKINEDIT", DrawEdit());
    icons.Add("TQV7SKINEXPLORERBAR", DrawExplorerBar());
    icons.Add("TQV7SKINGROUPBOX", DrawGroupBox());
    icons.Add("TQV7SKINPANEL", DrawPanel());
    icons.Add("TQV7SKINRADIOBUTTON", DrawRadioButton());
    icons.Add("TQV7SKINSIMPLETABCONTROL", DrawSimpleTabControl());
    icons.Add("TQV7SKINSPINEDIT", DrawSpinEdit());
    icons.Add("TQV7SKINTABCONTROL", DrawTabControl());
    icons.Add("TQV7SKINTOOLBAR", DrawToolbar());
    icons.Add("TQV7SKINTREECOMBOBOX", DrawTreeComboBox());
    return icons;
}

}  // namespace skinart
