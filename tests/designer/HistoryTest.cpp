#include "designer/model/History.h"

#include <gtest/gtest.h>

namespace designer {
namespace {

class HistoryTest : public testing::Test {
protected:
    void Edit(const String& label, const std::string& text) {
        History.Add(label, TTextChange::Between(Text, text));
        Text = text;
    }
    void Undo() {
        Text = History.Undone(Text);
        History.StepBack();
    }
    void Redo() {
        Text = History.Redone(Text);
        History.StepForward();
    }

    THistory History;
    std::string Text = "a";
};

TEST_F(HistoryTest, UndoesAndRedoesInOrder) {
    EXPECT_FALSE(History.CanUndo());
    Edit(L"first", "ab");
    Edit(L"second", "abc");
    EXPECT_EQ(History.UndoLabel(), L"second");
    Undo();
    EXPECT_EQ(Text, "ab");
    EXPECT_EQ(History.UndoLabel(), L"first");
    EXPECT_EQ(History.RedoLabel(), L"second");
    Undo();
    EXPECT_EQ(Text, "a");
    EXPECT_FALSE(History.CanUndo());
    Redo();
    Redo();
    EXPECT_EQ(Text, "abc");
    EXPECT_FALSE(History.CanRedo());
}

TEST_F(HistoryTest, ANewEditGivesUpWhatCouldBeRedone) {
    Edit(L"first", "ab");
    Edit(L"second", "abc");
    Undo();
    Edit(L"third", "abd");
    EXPECT_FALSE(History.CanRedo());
    EXPECT_EQ(History.Count(), 2u);
    Undo();
    EXPECT_EQ(Text, "ab");
}

TEST_F(HistoryTest, KnowsWhetherTheStateIsTheSavedOne) {
    EXPECT_TRUE(History.IsSaved());
    Edit(L"first", "ab");
    EXPECT_FALSE(History.IsSaved());
    History.MarkSaved();
    Edit(L"second", "abc");
    EXPECT_FALSE(History.IsSaved());
    Undo();
    EXPECT_TRUE(History.IsSaved());
    Undo();
    EXPECT_FALSE(History.IsSaved());
}

TEST_F(HistoryTest, ASavedStateThatWasGivenUpNeverComesBack) {
    Edit(L"first", "ab");
    History.MarkSaved();
    Undo();
    Edit(L"other", "ax");
    EXPECT_FALSE(History.IsSaved()) << "the same number of edits is not the same state";
    Undo();
    EXPECT_FALSE(History.IsSaved());
}

}  // namespace
}  // namespace designer
