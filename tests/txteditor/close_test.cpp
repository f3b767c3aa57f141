// The question before changes would be lost.
#include "txteditor/editortest.h"

namespace {

class Closing : public EditorTest {
protected:
    void startChanged() {
        startWithWares();
        editField(0, 1, QStringLiteral("5"));
    }
    void question(Answer answer) {
        script.Box(
            QStringLiteral("You have changed data in file %1\nDo you want to save your changes?")
                .arg(native("TWareT.txt")),
            answer);
    }
    /// The save dialog and what follows it.
    void save(bool goesOn) {
        script.Save(goesOn ? std::optional(FileChoice{native("TWareT.txt"), 1}) : std::nullopt);
        if (goesOn)
            script.Box(QStringLiteral("already exists"), Answer::Yes);
    }
    [[nodiscard]] bool saved() const { return read("TWareT.txt").starts_with("// Created"); }
};

struct Way {
    Answer Reply;
    bool Saves; ///< the save dialog is not cancelled
    bool Closes;
};

TEST_F(Closing, TheWindowStaysUnlessChangesAreSavedOrGivenUp) {
    const Way ways[] = {{Answer::Yes, true, true},
                        {Answer::Yes, false, false},
                        {Answer::No, false, true},
                        {Answer::Cancel, false, false}};
    for (const Way& way : ways) {
        startChanged();
        question(way.Reply);
        if (way.Reply == Answer::Yes)
            save(way.Saves);
        EXPECT_EQ(window->close(), way.Closes);
        EXPECT_EQ(window->isVisible(), !way.Closes);
        EXPECT_EQ(saved(), way.Saves);
        delete window.data();
    }
}

TEST_F(Closing, OpeningStopsAfterASave) {
    const Way ways[] = {{Answer::Yes, true, false},
                        {Answer::Yes, false, false},
                        {Answer::No, false, true},
                        {Answer::Cancel, false, false}};
    write("TWareE.txt", wares({"E"}));
    for (const Way& way : ways) {
        startChanged();
        question(way.Reply);
        if (way.Reply == Answer::Yes)
            save(way.Saves);
        window->OpenFile(program("TWareE.txt"));
        EXPECT_EQ(caption().startsWith(caption("TWareE.txt")), way.Closes);
        EXPECT_EQ(saved(), way.Saves);
        EXPECT_EQ(script.Boxes[0].Buttons, BoxButtons::YesNoCancel);
        delete window.data();
    }
}

TEST_F(Closing, NothingIsAskedWithoutChanges) {
    startWithWares();
    EXPECT_TRUE(window->close());
}

TEST_F(Closing, AChangeOfWhichNobodyToldIsAskedAboutToo) {
    startWithWares();
    pick("ObjectView", 0);
    window->SelectedObject()->SetValue(1, 5);
    question(Answer::Cancel);
    EXPECT_FALSE(window->close());
}

} // namespace
