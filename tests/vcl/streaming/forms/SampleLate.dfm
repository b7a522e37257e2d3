inherited SampleLate: TSampleLate
  inherited First: TSample
    Limit = 5
  end
  object Third: TSample
    Partner = First
  end
end
