object CaptionHeadersPage: TCaptionHeadersPage
  object Header1: TQV7SkinHeader
    Left = 24
    Top = 46
    Width = 340
    Height = 22
    Caption = 'Grau, Schrift der Skin'
  end
  object Header2: TQV7SkinHeader
    Left = 396
    Top = 46
    Width = 340
    Height = 22
    Grey = False
    Caption = 'Dunkel, Schrift der Skin'
  end
  object Header3: TQV7SkinHeader
    Left = 24
    Top = 80
    Width = 340
    Height = 22
    UseSkinFont = False
    Font.Color = 8448255
    Font.Style = [fsBold, fsItalic]
    Caption = 'Grau, eigene Schrift'
  end
  object Header4: TQV7SkinHeader
    Left = 396
    Top = 80
    Width = 340
    Height = 22
    Grey = False
    UseSkinFont = False
    Font.Color = 16765056
    Font.Style = [fsBold]
    Caption = 'Dunkel, eigene Schrift'
  end
  object Header5: TQV7SkinHeader
    Left = 24
    Top = 150
    Width = 340
    Height = 18
    Caption = '18 Pixel hoch'
  end
  object Header6: TQV7SkinHeader
    Left = 396
    Top = 150
    Width = 340
    Height = 18
    Grey = False
    Caption = '18 Pixel hoch'
  end
  object Header7: TQV7SkinHeader
    Left = 24
    Top = 178
    Width = 340
    Height = 20
    Caption = '20 Pixel hoch'
  end
  object Header8: TQV7SkinHeader
    Left = 396
    Top = 178
    Width = 340
    Height = 20
    Grey = False
    Caption = '20 Pixel hoch'
  end
  object Header9: TQV7SkinHeader
    Left = 24
    Top = 208
    Width = 340
    Height = 25
    Caption = '25 Pixel hoch'
  end
  object Header10: TQV7SkinHeader
    Left = 396
    Top = 208
    Width = 340
    Height = 25
    Grey = False
    Caption = '25 Pixel hoch'
  end
  object Header11: TQV7SkinHeader
    Left = 24
    Top = 243
    Width = 340
    Height = 34
    Caption = '34 Pixel hoch'
  end
  object Header12: TQV7SkinHeader
    Left = 396
    Top = 243
    Width = 340
    Height = 34
    Grey = False
    Caption = '34 Pixel hoch'
  end
  object Header13: TQV7SkinHeader
    Left = 24
    Top = 328
    Width = 160
    Height = 22
    Caption = 'Eine Beschriftung, die nicht hineinpasst'
  end
  object Header14: TQV7SkinHeader
    Left = 396
    Top = 328
    Width = 160
    Height = 22
    Grey = False
    LeftTextOffset = 40
    Caption = 'Soll & Haben'
  end
  object OpenPanel: TPanel
    Left = 24
    Top = 410
    Width = 340
    Height = 150
    BevelOuter = bvNone
    Color = clWhite
    ParentColor = False
    Caption = ''
    object OpenTitle: TQV7SkinHeader
      Height = 22
      Align = alTop
      Caption = 'Eingang'
    end
    object OpenMargin: TPanel
      Align = alClient
      BevelOuter = bvNone
      BorderWidth = 8
      Color = clWhite
      ParentColor = False
      Caption = ''
      object OpenList: TListBox
        Align = alClient
        BorderStyle = bsNone
        Items.Strings = (
          'Angebot 2041'
          'Rechnung 1187'
          'Lieferung 553')
      end
    end
  end
  object DonePanel: TPanel
    Left = 396
    Top = 410
    Width = 340
    Height = 150
    BevelOuter = bvNone
    Color = clWhite
    ParentColor = False
    Caption = ''
    object DoneTitle: TQV7SkinHeader
      Height = 22
      Align = alTop
      Grey = False
      Caption = 'Erledigt'
    end
    object DoneMargin: TPanel
      Align = alClient
      BevelOuter = bvNone
      BorderWidth = 8
      Color = clWhite
      ParentColor = False
      Caption = ''
      object DoneList: TListBox
        Align = alClient
        BorderStyle = bsNone
        Items.Strings = (
          'Angebot 2032'
          'Rechnung 1179')
      end
    end
  end
end
