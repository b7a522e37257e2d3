object FirstForm: TFirstForm
  Left = 200
  Top = 150
  BorderStyle = bsDialog
  Caption = 'Das erste Formular'
  ClientHeight = 96
  ClientWidth = 280
  Position = poScreenCenter
  object NameLabel: TLabel
    Left = 16
    Top = 20
    Width = 31
    Height = 13
    Caption = '&Name:'
    FocusControl = NameEdit
  end
  object NameEdit: TEdit
    Left = 72
    Top = 16
    Width = 192
    Height = 21
    TabOrder = 0
  end
  object GreetButton: TQV7SkinButton
    Left = 164
    Top = 56
    Width = 100
    Height = 25
    Caption = #38'Gr'#252#223'en'
    Default = True
    TabOrder = 1
    OnClick = GreetClick
  end
end
