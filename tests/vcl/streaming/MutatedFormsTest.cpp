#include <cstdlib>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/forms/StandardClasses.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Image.h"
#include "platform/vcl/stdctrls/Label.h"
#include "platform/vcl/stdctrls/ListBox.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/FormFiles.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/support/FormMutations.h"
#include "tests/vcl/streaming/DesignedForms.h"
#include "tests/vcl/streaming/ReaderFixture.h"

namespace vcl {
namespace {

constexpr const wchar_t* Forms[] = {
    LR"(object Form: TSampleForm
  Tag = -5
  Caption = 'Wei'#223' and '#55357#56832
  Always = 'A text that is so long that it needs two lines, since it has more than sixty-four letters'
  Width = 300
  Long = 9000000000
  Kinds = [skPlain, skStar]
  Ratio = 0.125
  Narrow = 1.5s
  Color = clRed
  Partner = A
  Anyone = Later.Image
  Style.Color = $FF
  Style.Inner.Label = 'x'
  Lines.Strings = (
    'one'
    'two'
    '')
  Items = <
    item
      Text = 'a'
      Partner = B
      OnPick = OtherClick
    end
    item [5]
      Parts = <
        item
          Width = 1
        end>
    end>
  OnClick = SampleClick
  Data = {
    000102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F
    2021}
  object A: TSample
    Visible = False
    object B: TSample [0]
      Partner = Owner
      OnCheck = SampleCheck
    end
    object TSample
    end
  end
  inline Frame1: TSampleFrame
    Caption = 'F'
    inherited Button: TSample
      Limit = 7
    end
  end
  object Timer1: TSampleTimer
    Left = 8
    Top = -9
  end
end
)",
    LR"(object Form: TSampleForm
  Unknown.Things = ((1 2.5 (True nil)) 'x' clBlue -1E-7 12.5c 38500d 0.5f)
  Other = Null
  object Grid: TForeign
    Columns = <
      item
      end>
  end
end
)",
};

using TFiles = std::vector<std::vector<std::byte>>;

/// Adds a form in all the shapes that files have.
void AddShapes(TFiles& files, const TFormDocument& document) {
    const auto binary = FormToBinary(document);
    files.push_back(FormToBytes(document, TFormFormat::Text));
    files.push_back(binary);
    files.push_back(WrapInResource(binary, L"TSAMPLEFORM"));
}

/// Forms of the sample classes, which hold every kind of value.
TFiles SampleFiles() {
    TFiles files;
    for (const wchar_t* form : Forms)
        AddShapes(files, ParseFormText(form));
    return files;
}

/// A form of the framework's controls, with pictures.
TFiles ControlFiles() {
    TForm form(nullptr);
    form.SetName(L"Form");
    TBitmap picture(16, 16, pf24bit);
    picture.GetCanvas().FillRect({0, 0, 16, 8});
    const auto add = [&](auto* component, const wchar_t* name) {
        component->SetName(name);
        component->SetParentComponent(&form);
        return component;
    };
    add(new TImage(&form), L"Image1")->GetPicture().Assign(&picture);
    add(new TImageList(&form), L"Images")->AddMasked(&picture, clWhite);
    add(new TMemo(&form), L"Memo1")->GetLines().SetText(L"one\r\ntwo");
    add(new TListBox(&form), L"List1")->GetItems().SetText(L"one\r\ntwo");
    TLabel* label = add(new TLabel(&form), L"Label1");
    label->SetFocusControl(add(new TEdit(&form), L"Edit1"));
    label->GetFont().SetStyle({fsBold});
    add(new TPanel(&form), L"Panel1")->SetAlign(alTop);
    TFiles files;
    AddShapes(files, TWriter().WriteRootComponent(form));
    return files;
}

class MutatedFormsTest : public ReaderTest {
protected:
    /// Makes an empty root that the damaged files are read into.
    using TNewRoot = std::unique_ptr<TComponent> (*)();

    template <class Root>
    static std::unique_ptr<TComponent> New() {
        return std::make_unique<Root>(nullptr);
    }

    void Run(const TFiles& files, TNewRoot newRoot, unsigned count) {
        FNewRoot = newRoot;
        for (unsigned seed = 0; seed < count && !HasFailure(); ++seed) {
            SCOPED_TRACE(testing::Message() << "seed " << seed);
            Check(test::FormMutations(seed).Damage(files[seed % files.size()]));
        }
        EXPECT_GT(FRead, count / 20) << "some damage is harmless";
        EXPECT_GT(FBuilt, 0u);
        EXPECT_GT(FRefused, count / 4);
    }

private:
    void Check(const std::vector<std::byte>& file) {
        TFormDocument document;
        try {
            document = ParseForm(file, L"Form.dfm");
        } catch (const EFormError& error) {
            ++FRefused;
            return CheckProblem(error.Problem(), file.size());
        }
        ++FRead;
        ExpectSameAgain(document);
        Build(document, file.size());
        Collect(document);
    }

    static void CheckProblem(const TFormProblem& problem, std::size_t size) {
        EXPECT_EQ(problem.FileName, L"Form.dfm");
        EXPECT_FALSE(problem.Text.empty());
        EXPECT_LE(problem.Position.IsOffset() ? problem.Position.Column : problem.Position.Line, size + 1);
    }

    static void ExpectSameAgain(const TFormDocument& document) {
        EXPECT_EQ(ParseForm(FormToBytes(document, TFormFormat::Text)), document);
        try {
            EXPECT_EQ(ParseForm(FormToBytes(document, TFormFormat::Binary)), document);
        } catch (const EFormError& error) {
            EXPECT_EQ(error.Problem().Kind, TFormProblemKind::OutOfRange) << error.what();
        }
    }

    void Build(const TFormDocument& document, std::size_t size) {
        const auto form = FNewRoot();
        try {
            TReader(document).ReadRootComponent(form.get());
            ++FBuilt;
        } catch (const EFormError& error) {
            if (error.Problem().FileName == L"Form.dfm") CheckProblem(error.Problem(), size);
            EXPECT_EQ(form->GetComponentCount(), 0);
        }
    }

    void Collect(const TFormDocument& document) const {
        const auto form = FNewRoot();
        TReader reader(document);
        reader.CollectProblems = true;
        reader.ReadRootComponent(form.get());
        TWriter writer;
        writer.UnreadProperties = &reader.GetUnreadProperties();
        const auto written = writer.WriteRootComponent(*form);
        EXPECT_EQ(ParseForm(FormToBytes(written, TFormFormat::Text)), written);
    }

    FrameClasses Frames;
    TNewRoot FNewRoot = nullptr;
    unsigned FRead = 0;
    unsigned FBuilt = 0;
    unsigned FRefused = 0;
};

TEST_F(MutatedFormsTest, AreReadOrRefusedWithAPlace) {
    Run(SampleFiles(), &New<TSampleForm>, 3000);
}

TEST_F(MutatedFormsTest, OfControlsAreReadOrRefusedWithAPlace) {
    RegisterStandardClasses();
    Run(ControlFiles(), &New<TForm>, 1000);
}

/// FORM_MUTATIONS: how many files are damaged in each test.
class MutatedFormsSoak : public MutatedFormsTest {
protected:
    static unsigned Count() {
        const char* count = std::getenv("FORM_MUTATIONS");
        return count ? static_cast<unsigned>(std::atoi(count)) : 100'000;
    }
};

TEST_F(MutatedFormsSoak, AreReadOrRefusedWithAPlace) {
    Run(SampleFiles(), &New<TSampleForm>, Count());
}

TEST_F(MutatedFormsSoak, OfControlsAreReadOrRefusedWithAPlace) {
    RegisterStandardClasses();
    Run(ControlFiles(), &New<TForm>, Count());
}

}  // namespace
}  // namespace vcl
