inherited frmQV7SkinDateTimePickerDropDown: TfrmQV7SkinDateTimePickerDropDown
  BorderStyle = bsNone
  Caption = 'MonthCalendar'
  ClientHeight = 158
  ClientWidth = 174
  Color = clWhite
  Font.Height = -11
  Font.Name = 'MS Sans Serif'
  KeyPreview = True
  OnKeyPress = FormKeyPress
  OnShow = FormShow
  object MonthCalendar: TMonthCalendar
    Left = -1
    Top = -1
    Width = 176
    Height = 160
    CalColors.BackColor = clWhite
    CalColors.TextColor = clBlack
    CalColors.TitleBackColor = $00555555
    CalColors.TrailingTextColor = $00F0EAE7
    TabOrder = 0
    OnDblClick = MonthCalendarDblClick
  end
end
