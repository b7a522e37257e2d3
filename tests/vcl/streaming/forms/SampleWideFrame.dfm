inherited SampleWideFrame: TSampleWideFrame
  Width = 300
  inherited Button: TSample
    Width = 31
  end
end
