object LoginForm: TLoginForm
  Color = clWhite
  ActiveControl = NameEdit
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Log in'
  ClientHeight = 88
  ClientWidth = 238
  Position = poScreenCenter
  object NameLabel: TLabel
    Left = 12
    Top = 16
    Width = 31
    Height = 13
    Caption = '&Name:'
    FocusControl = NameEdit
  end
  object NameEdit: TEdit
    Left = 60
    Top = 12
    Width = 166
    Height = 21
    TabOrder = 0
    OnChange = NameChange
  end
  object OkButton: TQV7SkinButton
    Left = 126
    Top = 48
    Width = 100
    Height = 25
    Caption = 'OK'
    Default = True
    Enabled = False
    TabOrder = 1
    OnClick = OkClick
  end
end
