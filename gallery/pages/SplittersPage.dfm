object SplittersPage: TSplittersPage
  object Upper: TPanel
    Left = 25
    Top = 50
    Width = 710
    Height = 190
    BevelOuter = bvNone
    Caption = ''
    object LeftArea: TMeasuringPanel
      Left = 0
      Top = 0
      Width = 230
      Height = 190
      Align = alLeft
      Title = 'Links'
      Least = 120
    end
    object LeftSplitter: TQV7SkinSplitter
      Left = 230
      Top = 0
      Width = 6
      Height = 190
      Beveled = True
      Color = 15000804
      ParentColor = False
      ResizeStyle = rsUpdate
      MinConstraints.Left = 120
      MinConstraints.Right = 300
    end
    object RightArea: TMeasuringPanel
      Left = 560
      Top = 0
      Width = 150
      Height = 190
      Align = alRight
      Title = 'Rechts'
    end
    object RightSplitter: TQV7SkinSplitter
      Left = 554
      Top = 0
      Width = 6
      Height = 190
      Align = alRight
      Beveled = True
      Color = 15000804
      ParentColor = False
      ResizeStyle = rsUpdate
    end
    object UpperMiddle: TMeasuringPanel
      Left = 236
      Top = 0
      Width = 318
      Height = 190
      Align = alClient
      Color = clWhite
      Title = 'Mitte'
    end
  end
  object Lower: TPanel
    Left = 25
    Top = 302
    Width = 710
    Height = 290
    BevelOuter = bvNone
    Caption = ''
    object TopArea: TMeasuringPanel
      Left = 0
      Top = 0
      Width = 710
      Height = 90
      Align = alTop
      Title = 'Oben'
      Least = 60
      MeasuresHeight = True
    end
    object TopSplitter: TQV7SkinSplitter
      Left = 0
      Top = 90
      Width = 710
      Height = 6
      Align = alTop
      Beveled = True
      Color = 15000804
      ParentColor = False
      MinConstraints.Top = 60
      MinConstraints.Bottom = 150
    end
    object BottomArea: TMeasuringPanel
      Left = 0
      Top = 210
      Width = 710
      Height = 80
      Align = alBottom
      Title = 'Unten'
      Least = 50
      MeasuresHeight = True
    end
    object BottomSplitter: TQV7SkinSplitter
      Left = 0
      Top = 204
      Width = 710
      Height = 6
      Align = alBottom
      Beveled = True
      Color = 15000804
      ParentColor = False
      MinConstraints.Bottom = 50
    end
    object LowerMiddle: TMeasuringPanel
      Left = 0
      Top = 96
      Width = 710
      Height = 108
      Align = alClient
      Color = clWhite
      Title = 'Mitte'
      MeasuresHeight = True
    end
  end
end
