object PaintBoxPage: TPaintBoxPage
  object Slider: TTrackBar
    Left = 18
    Top = 302
    Width = 432
    Height = 32
    TabOrder = 0
    Frequency = 10
    Max = 100
    Position = 100
    OnChange = SliderChanged
  end
end
