object GlowButtonPage: TGlowButtonPage
  object Counter: TClickCounter
    Left = 24
    Top = 596
    Width = 400
    Height = 16
    Transparent = True
  end
  object OkButton: TQV7SkinButton
    Left = 24
    Top = 542
    Width = 100
    Height = 25
    Caption = 'OK'
    Default = True
    TabOrder = 0
    OnClick = ButtonClick
  end
  object CancelButton: TQV7SkinButton
    Left = 143
    Top = 542
    Width = 100
    Height = 25
    Cancel = True
    Caption = '&Abbrechen'
    TabOrder = 1
    OnClick = ButtonClick
  end
  object DisabledButton: TQV7SkinButton
    Left = 262
    Top = 542
    Width = 100
    Height = 25
    Caption = 'Gesperrt'
    Enabled = False
    TabOrder = 2
    OnClick = ButtonClick
  end
  object ToggleButton: TQV7SkinButton
    Left = 381
    Top = 542
    Width = 100
    Height = 25
    ButtonStyle = bxsToggle
    Caption = 'Umschalter'
    TabOrder = 3
    OnClick = ButtonClick
  end
  object RoundedButton: TQV7SkinButton
    Left = 500
    Top = 542
    Width = 100
    Height = 25
    Caption = 'Gerundet'
    TabOrder = 4
    OnClick = ButtonClick
  end
  object PictureButton: TQV7SkinButton
    Left = 619
    Top = 542
    Width = 100
    Height = 25
    Caption = 'Bild'
    TabOrder = 5
    OnClick = ButtonClick
  end
end
