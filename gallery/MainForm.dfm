object MainForm: TMainForm
  Color = clWhite
  ActiveControl = Navigation
  Caption = 'QV7 Skin '#8211' Galerie'
  ClientHeight = 680
  ClientWidth = 960
  Position = poScreenCenter
  object Title: TPaintArea
    Left = 0
    Top = 0
    Width = 960
    Height = 46
    Align = alTop
    OnPaint = PaintTitle
  end
  object Navigation: TNavigation
    Left = 0
    Top = 46
    Width = 200
    Height = 634
    Align = alLeft
    OnChange = NavigationChanged
  end
end
