object LinkLabelsPage: TLinkLabelsPage
  object Counter: TClickCounter
    Left = 24
    Top = 556
    Width = 500
    Height = 16
  end
  object Resting: TQV7SkinLinkLabel
    Left = 214
    Top = 50
    Caption = 'Weitere Einstellungen'
    OnClick = LinkClick
  end
  object Hovered: TQV7SkinLinkLabel
    Left = 214
    Top = 76
    Caption = 'Weitere Einstellungen'
    Font.Style = [fsUnderline]
    OnClick = LinkClick
  end
  object Disabled: TQV7SkinLinkLabel
    Left = 214
    Top = 102
    Caption = 'Weitere Einstellungen'
    Enabled = False
    OnClick = LinkClick
  end
  object Opaque: TSheetLinkLabel
    Left = 214
    Top = 184
    Caption = 'Bericht '#246'ffnen'
    OnClick = LinkClick
  end
  object Clear: TSheetLinkLabel
    Left = 214
    Top = 212
    Caption = 'Bericht '#246'ffnen'
    TransparentColor = clFuchsia
    OnClick = LinkClick
  end
  object ClearDisabled: TSheetLinkLabel
    Left = 214
    Top = 240
    Caption = 'Bericht '#246'ffnen'
    TransparentColor = clFuchsia
    Enabled = False
    OnClick = LinkClick
  end
  object News: TQV7SkinLinkLabel
    Left = 214
    Top = 264
    Caption = 'Was ist neu?'#10'Die '#196'nderungen dieser Fassung'
    OnClick = LinkClick
  end
  object Cut: TQV7SkinLinkLabel
    Left = 214
    Top = 342
    Width = 220
    Height = 16
    AutoSize = False
    Caption = 'C:\Benutzer\Anna\Dokumente\Angebote\2024\Angebot.txt'
    OnClick = LinkClick
  end
  object CutWithPicture: TSheetLinkLabel
    Left = 214
    Top = 366
    Width = 220
    Height = 16
    AutoSize = False
    Caption = 'C:\Benutzer\Anna\Dokumente\Angebote\2024\Angebot.txt'
    TransparentColor = clFuchsia
    OnClick = LinkClick
  end
  object Dots: TQV7SkinLinkLabel
    Left = 214
    Top = 398
    Width = 220
    Height = 16
    AutoSize = False
    Caption = 'C:\Benutzer\Anna\Dokumente\Angebote\2024\Angebot.txt'
    EllipsType = etEndEllips
    OnClick = LinkClick
  end
  object DotsWithPicture: TSheetLinkLabel
    Left = 214
    Top = 422
    Width = 220
    Height = 16
    AutoSize = False
    Caption = 'C:\Benutzer\Anna\Dokumente\Angebote\2024\Angebot.txt'
    EllipsType = etEndEllips
    TransparentColor = clFuchsia
    OnClick = LinkClick
  end
  object PathDots: TQV7SkinLinkLabel
    Left = 214
    Top = 454
    Width = 220
    Height = 16
    AutoSize = False
    Caption = 'C:\Benutzer\Anna\Dokumente\Angebote\2024\Angebot.txt'
    EllipsType = etPathEllips
    OnClick = LinkClick
  end
  object PathDotsWithPicture: TSheetLinkLabel
    Left = 214
    Top = 478
    Width = 220
    Height = 16
    AutoSize = False
    Caption = 'C:\Benutzer\Anna\Dokumente\Angebote\2024\Angebot.txt'
    EllipsType = etPathEllips
    TransparentColor = clFuchsia
    OnClick = LinkClick
  end
end
