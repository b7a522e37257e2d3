object DesignerWindow: TDesignerWindow
  Left = 80
  Top = 60
  Caption = 'QV7 Designer'
  ClientHeight = 700
  ClientWidth = 1080
  KeyPreview = False
  ShowHint = True
  OnActivate = WindowActivate
  OnCloseQuery = WindowCloseQuery
  object Toolbar: TQV7SkinToolbar
    Left = 0
    Top = 0
    Width = 1080
    Height = 34
    Align = alTop
  end
  object PaletteTabs: TQV7SkinSimpleTabControl
    Left = 0
    Top = 34
    Width = 1080
    Height = 25
    Align = alTop
    AllowItemDrag = False
  end
  object Strip: TPaletteStrip
    Left = 0
    Top = 59
    Width = 1080
    Height = 36
    Align = alTop
    OnChoose = StripChoose
    OnPlace = StripPlace
  end
  object StatusPanel: TPanel
    Left = 0
    Top = 678
    Width = 1080
    Height = 22
    Align = alBottom
    Alignment = taLeftJustify
    BevelOuter = bvNone
    Color = 15788775
  end
  object SidePanel: TPanel
    Left = 0
    Top = 95
    Width = 280
    Height = 583
    Align = alLeft
    BevelOuter = bvNone
    Color = clWhite
    object Structure: TQV7SkinExplorerBar
      Left = 0
      Top = 0
      Width = 280
      Height = 170
      Align = alTop
      Animate = False
    end
    object StructureSplitter: TQV7SkinSplitter
      Left = 0
      Top = 170
      Width = 280
      Height = 4
      Cursor = crVSplit
      Align = alTop
      MinSize = 60
    end
    object InspectorTabs: TQV7SkinSimpleTabControl
      Left = 0
      Top = 174
      Width = 280
      Height = 25
      Align = alTop
      AllowItemDrag = False
    end
    object InspectorScroll: TScrollBox
      Left = 0
      Top = 199
      Width = 280
      Height = 384
      Align = alClient
      BorderStyle = bsNone
      Color = clWhite
      object Grid: TInspectorGrid
        Left = 0
        Top = 0
        Width = 280
        Height = 20
        Align = alTop
      end
    end
  end
  object SideSplitter: TQV7SkinSplitter
    Left = 280
    Top = 95
    Width = 4
    Height = 583
    Align = alLeft
    MinSize = 160
  end
  object Sheet: TPanel
    Left = 284
    Top = 95
    Width = 796
    Height = 583
    Align = alClient
    BevelOuter = bvNone
    object SurfaceScroll: TScrollBox
      Left = 0
      Top = 0
      Width = 796
      Height = 583
      Align = alClient
      BorderStyle = bsNone
      Color = 15788775
    end
    object TextMemo: TMemo
      Left = 0
      Top = 0
      Width = 796
      Height = 583
      Align = alClient
      BorderStyle = bsNone
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWindowText
      Font.Height = -13
      Font.Name = 'Courier New'
      Font.Pitch = fpFixed
      Font.Style = []
      ParentFont = False
      ScrollBars = ssBoth
      Visible = False
      WantTabs = True
      WordWrap = False
      OnChange = TextChange
      OnExit = TextExit
    end
  end
  object Clock: TTimer
    Interval = 2000
    OnTimer = ClockTimer
    Left = 1008
    Top = 632
  end
end
