inherited SampleDerived: TSampleDerived
  Caption = 'Derived'
  OnClick = DerivedClick
  inherited First: TSample
    Width = 11
    Limit = 5
    object Added: TSample
      Partner = Second
    end
  end
  object Third: TSample [0]
  end
end
