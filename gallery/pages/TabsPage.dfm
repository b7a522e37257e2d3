object TabsPage: TTabsPage
  object Documents: TDocumentTabs
    Left = 24
    Top = 46
    Width = 712
    Height = 200
    Look = bckgrndStandard
  end
  object NewButton: TQV7SkinButton
    Left = 24
    Top = 256
    Width = 114
    Height = 25
    Caption = 'Neuer Reiter'
    OnClick = NewClick
  end
  object BusyButton: TQV7SkinButton
    Left = 148
    Top = 256
    Width = 114
    Height = 25
    Caption = 'Laden ein/aus'
    OnClick = BusyClick
  end
  object Narrow: TDocumentTabs
    Left = 24
    Top = 334
    Width = 420
    Height = 25
    Look = bckgrndStandard
  end
end
