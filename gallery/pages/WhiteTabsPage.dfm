object WhiteTabsPage: TWhiteTabsPage
  object Documents: TDocumentTabs
    Left = 24
    Top = 46
    Width = 712
    Height = 190
    Look = bckgrndWhite
  end
end
