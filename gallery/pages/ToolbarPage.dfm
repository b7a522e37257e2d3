object ToolbarPage: TToolbarPage
  object Captions: TQV7SkinToolbar
    Left = 24
    Top = 46
    Width = 712
    Height = 34
  end
  object Pictures: TQV7SkinToolbar
    Left = 24
    Top = 138
    Width = 300
    Height = 34
  end
  object Narrow: TQV7SkinToolbar
    Left = 24
    Top = 230
    Width = 360
    Height = 34
    ChevronDropDown = Menu
  end
  object Posing: TQV7SkinToolbar
    Left = 24
    Top = 322
    Width = 712
    Height = 34
  end
  object Last: TLabel
    Left = 24
    Top = 372
    Width = 400
    Height = 16
    AutoSize = False
    Caption = 'Noch nichts angeklickt'
  end
  object Menu: TPopupMenu
    OnPopup = FillMenu
  end
end
