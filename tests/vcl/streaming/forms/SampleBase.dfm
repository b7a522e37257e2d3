object SampleBase: TSampleBase
  Caption = 'Base'
  OnClick = BaseClick
  object First: TSample
    Width = 10
    Partner = Second
  end
  object Second: TSample
    Width = 20
  end
end
