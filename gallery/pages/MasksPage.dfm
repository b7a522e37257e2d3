object MasksPage: TMasksPage
  object BluePanel: TPanel
    Left = 40
    Top = 52
    Width = 310
    Height = 136
    Color = 16245710
    BevelOuter = bvNone
    TabOrder = 0
  end
  object WhitePanel: TPanel
    Left = 410
    Top = 52
    Width = 310
    Height = 136
    Color = 16245710
    BevelOuter = bvNone
    TabOrder = 1
  end
  object GreenPanel: TPanel
    Left = 40
    Top = 252
    Width = 310
    Height = 136
    Color = 14217432
    BevelOuter = bvNone
    TabOrder = 2
  end
  object PicturePanel: TPanel
    Left = 410
    Top = 252
    Width = 310
    Height = 136
    ParentColor = True
    BevelOuter = bvNone
    TabOrder = 3
    object Gradient: TPaintArea
      Left = 0
      Top = 0
      Width = 310
      Height = 136
      Align = alClient
      OnPaint = PaintGradient
    end
  end
  object Container: TContainer
    Left = 40
    Top = 452
    Width = 310
    Height = 136
    TabOrder = 4
    Caption = 'Inhalt'
    WhiteBackground = True
  end
  object Memo: TMemo
    Left = 413
    Top = 452
    Width = 307
    Height = 136
    TabOrder = 5
    BorderStyle = bsNone
    Lines.Strings = (
      ''
      '   Ein gew'#246'hnliches Textfeld.'
      '   Der Skinner rundet es von au'#223'en.')
  end
  object BlueMask: TMaskingPanelImagesFromResource
    Control = BluePanel
  end
  object WhiteMask: TMaskingPanelImagesFromResource
    Control = WhitePanel
    WhiteBackground = True
  end
  object GreenMask: TMaskingPanelImages
    Control = GreenPanel
  end
  object EllipseMask: TMaskingPanelEllipse
    Control = PicturePanel
  end
end
