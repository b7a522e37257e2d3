object SkinButtonPage: TSkinButtonPage
  object Counter: TClickCounter
    Left = 24
    Top = 596
    Width = 400
    Height = 16
    Transparent = True
  end
  object SaveButton: TShownButton
    Left = 24
    Top = 542
    Width = 100
    Height = 25
    TabOrder = 0
    Caption = 'Speichern'
    OnClick = ButtonClick
  end
  object PrintButton: TShownButton
    Left = 143
    Top = 542
    Width = 100
    Height = 25
    TabOrder = 1
    Caption = '&Drucken'
    OnClick = ButtonClick
  end
  object DisabledButton: TShownButton
    Left = 262
    Top = 542
    Width = 100
    Height = 25
    TabOrder = 2
    Caption = 'Gesperrt'
    Enabled = False
    OnClick = ButtonClick
  end
  object ToggleButton: TShownButton
    Left = 381
    Top = 542
    Width = 100
    Height = 25
    TabOrder = 3
    Caption = 'Umschalter'
    ButtonStyle = bxsToggle
    OnClick = ButtonClick
  end
  object LargeButton: TShownButton
    Left = 500
    Top = 534
    Width = 120
    Height = 41
    TabOrder = 4
    Caption = 'Gro'#223
    OnClick = ButtonClick
  end
end
