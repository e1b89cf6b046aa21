#include "Samples.h"
#include "ui_FormOfStates.h"

#include <Catalogue/EntryWindow.h>

#include <Support/TestCase.h>

using namespace Zelkor::Catalogue;

/// Compares the code that readers copy with the states that it comes from. Both were compiled at build time.
class tst_SampleCode : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ApplySheet("dark");
        Ui::FormOfStates().setupUi(&form);
    }

    void sampleLooksLikeItsState_data() { AddRows(); }

    void sampleLooksLikeItsState()
    {
        QFETCH(int, state);
        const Entry& entry = EntryOfRow();
        const std::unique_ptr<QWidget> sample(SAMPLES.at(entry.className + QString::number(state))());
        if (entry.example)
            return;
        QVERIFY(!sample->children().isEmpty());
        auto* copy = qobject_cast<QWidget*>(sample->children().constFirst());
        EntryWindow copyWindow([copy](QWidget* parent) {
            copy->setParent(parent);
            return copy;
        });
        EntryWindow window(entry, StateOfRow());
        copyWindow.ShowInactive();
        window.ShowInactive();
        QTRY_COMPARE(copy->grab().toImage(), window.widget->grab().toImage());
    }

    void formHasThePropertiesOfItsState_data() { AddRows(); }

    void formHasThePropertiesOfItsState()
    {
        QFETCH(int, state);
        const auto* widget = form.findChild<QWidget*>(EntryOfRow().className + QString::number(state));
        if (!widget)
            QSKIP("Forms cannot contain it");
        QWidget window;
        const QWidget* expected = CreateInState(EntryOfRow(), StateOfRow(), &window);
        for (const char* name : {"accessibleName", "enabled", "role", "originalText", "maskMode", "endTime",
                                 "previewWidth", "preferredPopupAnchor", "orientation"})
            QCOMPARE(widget->property(name), expected->property(name));
    }

private:
    QWidget form;
};

VX_TEST_MAIN(tst_SampleCode)
#include "tst_SampleCode.moc"
