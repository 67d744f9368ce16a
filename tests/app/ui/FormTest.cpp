#include "ui/form/FormRegistry.h"

#include <QApplication>
#include <QPointer>
#include <QStringList>

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

/// Notes what happens to it.
class NotingForm : public Form {
public:
    NotingForm(FormRegistry& registry, QStringList& journal)
        : Form(registry)
        , m_journal(journal) {}

    bool refuses = false;
    std::function<void()> whileLoading;
    std::function<void()> whileUnloading;

protected:
    void Form_Load() override {
        m_journal << "load";
        if (whileLoading)
            whileLoading();
    }
    void Form_Activate() override { m_journal << "activate"; }
    void Form_QueryUnload(bool& cancel, UnloadMode unloadMode) override {
        m_journal << QString("query %1").arg(static_cast<int>(unloadMode));
        cancel = refuses;
    }
    void Form_Unload() override {
        m_journal << "unload";
        if (whileUnloading)
            whileUnloading();
    }

private:
    QStringList& m_journal;
};

class FormBase : public testing::Test {
protected:
    std::shared_ptr<NotingForm> form() { return registry.obtain<NotingForm>(journal); }
    void letGo() const { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    QStringList journal;
    FormRegistry registry;
    ~FormBase() override { registry.dispose(); }
};

TEST_F(FormBase, IsLoadedOnceAndActivatedAtEachShowing) {
    form()->showForm();
    form()->showForm();
    form()->hide();
    form()->showForm();
    EXPECT_EQ(journal, (QStringList{"load", "activate", "activate"}));
    EXPECT_EQ(form()->windowTitle(), "Tavrelion-PDF to Word Converter");
}

TEST_F(FormBase, ThereIsOneOfAKindAtATime) {
    EXPECT_EQ(form(), form());
    EXPECT_TRUE(registry.loadedWindows().empty()) << "made, but not loaded";
    form()->load();
    EXPECT_EQ(registry.loadedWindows().size(), 1u);
}

TEST_F(FormBase, MayRefuseToUnload) {
    form()->showForm();
    form()->refuses = true;
    form()->unload(UnloadMode::Code);
    EXPECT_TRUE(form()->isVisible());
    EXPECT_TRUE(form()->isLoaded());
    EXPECT_FALSE(journal.contains("unload"));
}

TEST_F(FormBase, HearsWhyItIsToUnload) {
    form()->refuses = true;
    form()->showForm();
    form()->close();
    registry.noteSystemShutdown();
    form()->close();
    form()->unload(UnloadMode::Code);
    EXPECT_EQ(journal.mid(2), (QStringList{"query 0", "query 2", "query 1"}));
    EXPECT_TRUE(form()->isVisible()) << "a close that is refused hides nothing";
}

TEST_F(FormBase, TheUserClosesIt) {
    form()->showForm();
    form()->close();
    EXPECT_EQ(journal.mid(2), (QStringList{"query 0", "unload"}));
    EXPECT_TRUE(registry.loadedWindows().empty());
}

TEST_F(FormBase, IsMadeAnewAfterUnloading) {
    const QPointer<NotingForm> old = form().get();
    old->showForm();
    old->unload(UnloadMode::Code);
    form()->showForm();
    letGo();
    EXPECT_TRUE(old.isNull());
    EXPECT_EQ(journal, (QStringList{"load", "activate", "query 1", "unload", "load", "activate"}));
}

TEST_F(FormBase, ThatUnloadsWhileItLoadsLivesUntilItsHandlerIsThrough) {
    const QPointer<NotingForm> watched = form().get();
    watched->whileLoading = [&] {
        watched->unload(UnloadMode::Code);
        letGo();
        EXPECT_FALSE(watched.isNull());
        EXPECT_FALSE(watched->isLoaded());
    };
    watched->showForm();
    letGo();
    EXPECT_TRUE(watched.isNull());
    EXPECT_EQ(journal, (QStringList{"load", "query 1", "unload"})) << "and it is not shown";
}

TEST_F(FormBase, OnItsWayOutIsNotUnloadedOnceMore) {
    form()->showForm();
    form()->whileUnloading = [this] { UnloadAllForms({}, registry); };
    form()->unload(UnloadMode::Code);
    EXPECT_EQ(journal.count("unload"), 1);
}

TEST_F(FormBase, IsRestoredAndRaisedWhenAnotherCopyKnocks) {
    form()->showForm();
    form()->showMinimized();
    registry.bringForward("");
    EXPECT_FALSE(form()->isMinimized());
    EXPECT_TRUE(form()->isVisible());
}

/// A second kind of form, as the progress window is beside the main window.
class OtherForm : public Form {
public:
    using Form::Form;
};

TEST_F(FormBase, ThatIsHiddenIsPassedOverForTheOneThatIsShown) {
    form()->showForm();
    form()->hide();
    const auto other = registry.obtain<OtherForm>();
    other->showForm();
    other->showMinimized();
    registry.bringForward("token");
    EXPECT_FALSE(other->isMinimized());
    EXPECT_FALSE(form()->isVisible());
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN")) << "no program started later may inherit it";
}

TEST_F(FormBase, IsNotShownOnceTheProgramHasEnded) {
    registry.endProgram();
    form()->showForm();
    EXPECT_FALSE(form()->isVisible());
}

} // namespace
} // namespace tavrelion::tests
