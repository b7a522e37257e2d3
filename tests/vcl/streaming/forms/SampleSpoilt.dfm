object SampleSpoilt: TSampleSpoilt
  object Good: TSample
  end
  object Bad: TSample
    Widht = 5
  end
end
