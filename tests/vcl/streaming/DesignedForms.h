#pragma once

#include "tests/vcl/streaming/SampleComponents.h"

// Classes whose forms are resources of the test program.

namespace vcl {

class TSampleBase : public TSampleForm {
public:
    explicit TSampleBase(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void BaseClick(TObject*) { Clicks += 100; }

protected:
    void Loaded() override;
};

class TSampleDerived : public TSampleBase {
public:
    explicit TSampleDerived(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void DerivedClick(TObject*) { Clicks += 1000; }

protected:
    void Loaded() override;
};

/// Leaves reading its form to the class that derives from it.
class TSampleLateBase : public TSampleForm {
public:
    using TSampleForm::TSampleForm;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

class TSampleLate : public TSampleLateBase {
public:
    explicit TSampleLate(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

class TSampleFrame : public TSample {
public:
    explicit TSampleFrame(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void FrameClick(TObject*) { ++Clicks; }
    int Clicks = 0;
};

class TSampleWideFrame : public TSampleFrame {
public:
    explicit TSampleWideFrame(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

/// Its form can't be read.
class TSampleSpoilt : public TSampleForm {
public:
    explicit TSampleSpoilt(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

/// Registers the frames for the time of its life.
class FrameClasses {
public:
    FrameClasses();
    ~FrameClasses();
    FrameClasses(const FrameClasses&) = delete;
    FrameClasses& operator=(const FrameClasses&) = delete;
};

}  // namespace vcl
