object OrderFormPage: TOrderFormPage
  object LabelOn60: TLabel
    Left = 24
    Top = 66
    Width = 80
    Height = 13
    Caption = 'Anrede'
  end
  object SalutationOn: TQV7SkinComboBox
    Left = 114
    Top = 60
    Width = 200
    Height = 25
    Items.Strings = (
      'Frau'
      'Herr'
      'Firma')
    ItemIndex = 1
    Style = csDropDownList
  end
  object LabelOn96: TLabel
    Left = 24
    Top = 102
    Width = 80
    Height = 13
    Caption = 'Name'
  end
  object CustomerNameOn: TQV7SkinEdit
    Left = 114
    Top = 96
    Width = 200
    Height = 25
    Text = 'Beate Muster'
  end
  object LabelOn132: TLabel
    Left = 24
    Top = 138
    Width = 80
    Height = 13
    Caption = 'Land'
  end
  object CountryOn: TQV7SkinComboBox
    Left = 114
    Top = 132
    Width = 200
    Height = 25
    Items.Strings = (
      'Deutschland'
      #214'sterreich'
      'Schweiz')
    Text = 'Deutschland'
  end
  object LabelOn168: TLabel
    Left = 24
    Top = 174
    Width = 80
    Height = 13
    Caption = 'Menge'
  end
  object AmountOn: TQV7SkinSpinEdit
    Left = 114
    Top = 168
    Width = 90
    Height = 25
    MaxValue = 99
    MinValue = 1
    Value = 3
  end
  object LabelOn204: TLabel
    Left = 24
    Top = 210
    Width = 80
    Height = 13
    Caption = 'Lieferdatum'
  end
  object DeliveryOn: TQV7SkinDateTimePicker
    Left = 114
    Top = 204
    Width = 150
    Height = 25
    Date = 41673
  end
  object LabelOn240: TLabel
    Left = 24
    Top = 246
    Width = 80
    Height = 13
    Caption = 'Versand'
  end
  object ShippingOn: TQV7SkinComboBoxCustomDropDown
    Left = 114
    Top = 240
    Width = 200
    Height = 25
    Text = 'Standardversand bis zur Haust'#252'r'
  end
  object LabelOn276: TLabel
    Left = 24
    Top = 282
    Width = 80
    Height = 13
    Caption = 'Kategorie'
  end
  object CategoryOn: TQV7SkinTreeComboBox
    Left = 114
    Top = 276
    Width = 200
    Height = 25
    Items.Strings = (
      'Lebensmittel'
      #9'Obst'
      #9#9'Apfel'
      #9#9'Birne'
      #9'Gem'#252'se'
      #9#9'Kohl'
      #9#9'Spinat'
      'B'#252'robedarf'
      #9'Papier'
      #9'Stifte'
      'Sonstiges')
    ItemIndex = 3
  end
  object PaymentOn: TQV7SkinGroupBox
    Left = 24
    Top = 316
    Width = 290
    Height = 76
    Caption = 'Zahlung'
    object InvoiceOn: TQV7SkinRadioButton
      Left = 12
      Top = 22
      Width = 150
      Height = 17
      Caption = '&Rechnung'
      Checked = True
    end
    object DebitOn: TQV7SkinRadioButton
      Left = 12
      Top = 46
      Width = 150
      Height = 17
      Caption = '&Lastschrift'
    end
  end
  object GiftOn: TQV7SkinCheckBox
    Left = 24
    Top = 408
    Width = 200
    Height = 17
    Caption = 'Als &Geschenk verpacken'
    Checked = True
  end
  object LabelOff60: TLabel
    Left = 400
    Top = 66
    Width = 80
    Height = 13
    Caption = 'Anrede'
  end
  object SalutationOff: TQV7SkinComboBox
    Left = 490
    Top = 60
    Width = 200
    Height = 25
    Items.Strings = (
      'Frau'
      'Herr'
      'Firma')
    ItemIndex = 1
    Style = csDropDownList
    Enabled = False
  end
  object LabelOff96: TLabel
    Left = 400
    Top = 102
    Width = 80
    Height = 13
    Caption = 'Name'
  end
  object CustomerNameOff: TQV7SkinEdit
    Left = 490
    Top = 96
    Width = 200
    Height = 25
    Text = 'Beate Muster'
    Enabled = False
  end
  object LabelOff132: TLabel
    Left = 400
    Top = 138
    Width = 80
    Height = 13
    Caption = 'Land'
  end
  object CountryOff: TQV7SkinComboBox
    Left = 490
    Top = 132
    Width = 200
    Height = 25
    Items.Strings = (
      'Deutschland'
      #214'sterreich'
      'Schweiz')
    Text = 'Deutschland'
    Enabled = False
  end
  object LabelOff168: TLabel
    Left = 400
    Top = 174
    Width = 80
    Height = 13
    Caption = 'Menge'
  end
  object AmountOff: TQV7SkinSpinEdit
    Left = 490
    Top = 168
    Width = 90
    Height = 25
    MaxValue = 99
    MinValue = 1
    Value = 3
    Enabled = False
  end
  object LabelOff204: TLabel
    Left = 400
    Top = 210
    Width = 80
    Height = 13
    Caption = 'Lieferdatum'
  end
  object DeliveryOff: TQV7SkinDateTimePicker
    Left = 490
    Top = 204
    Width = 150
    Height = 25
    Date = 41673
    Enabled = False
  end
  object LabelOff240: TLabel
    Left = 400
    Top = 246
    Width = 80
    Height = 13
    Caption = 'Versand'
  end
  object ShippingOff: TQV7SkinComboBoxCustomDropDown
    Left = 490
    Top = 240
    Width = 200
    Height = 25
    Text = 'Standardversand bis zur Haust'#252'r'
    Enabled = False
  end
  object LabelOff276: TLabel
    Left = 400
    Top = 282
    Width = 80
    Height = 13
    Caption = 'Kategorie'
  end
  object CategoryOff: TQV7SkinTreeComboBox
    Left = 490
    Top = 276
    Width = 200
    Height = 25
    Items.Strings = (
      'Lebensmittel'
      #9'Obst'
      #9#9'Apfel'
      #9#9'Birne'
      #9'Gem'#252'se'
      #9#9'Kohl'
      #9#9'Spinat'
      'B'#252'robedarf'
      #9'Papier'
      #9'Stifte'
      'Sonstiges')
    ItemIndex = 3
    Enabled = False
  end
  object PaymentOff: TQV7SkinGroupBox
    Left = 400
    Top = 316
    Width = 290
    Height = 76
    Caption = 'Zahlung'
    Enabled = False
    object InvoiceOff: TQV7SkinRadioButton
      Left = 12
      Top = 22
      Width = 150
      Height = 17
      Caption = '&Rechnung'
      Checked = True
      Enabled = False
    end
    object DebitOff: TQV7SkinRadioButton
      Left = 12
      Top = 46
      Width = 150
      Height = 17
      Caption = '&Lastschrift'
      Enabled = False
    end
  end
  object GiftOff: TQV7SkinCheckBox
    Left = 400
    Top = 408
    Width = 200
    Height = 17
    Caption = 'Als &Geschenk verpacken'
    Checked = True
    Enabled = False
  end
end
