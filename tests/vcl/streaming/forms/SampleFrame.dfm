object SampleFrame: TSampleFrame
  Caption = 'Frame'
  object Button: TSample
    Width = 30
    OnClick = FrameClick
    Partner = Label
  end
  object Label: TSample
    Caption = 'Label'
  end
end
