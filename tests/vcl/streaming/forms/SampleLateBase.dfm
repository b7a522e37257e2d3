object SampleLateBase: TSampleLateBase
  object First: TSample
    Partner = Second
  end
  object Second: TSample
  end
end
