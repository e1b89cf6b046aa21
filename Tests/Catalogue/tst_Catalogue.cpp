#include <Catalogue/Catalogue.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/TestCase.h>

#include <QToolButton>

#include <algorithm>
#include <memory>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

class tst_Catalogue : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { LoadStyleSheet("dark")->apply(); }

    void entriesAreWhole()
    {
        for (const Entry& entry : Entries()) {
            InRow(entry.className);
            // Of two entries with one name, the second would not be found.
            QCOMPARE(FindEntry(entry.className), &entry);
            QVERIFY(!entry.group.isEmpty() && !entry.description.isEmpty());
            QVERIFY(entry.pictured >= 0 && entry.pictured < entry.states.size());
            QStringList stateNames;
            for (const State& state : entry.states)
                stateNames.append(state.name);
            QVERIFY(stateNames.removeDuplicates() == 0 && !stateNames.contains(QString()));
        }
    }

    // What a state looks like, the test of the environment looks at.
    void statesBelongToTheirParent()
    {
        for (const Entry& entry : Entries()) {
            for (const State& state : entry.states) {
                InRow(entry.className + ", " + state.name);
                QWidget parent;
                // One that goes before it was shown leaves nothing behind.
                delete CreateInState(entry, state, &parent);
                QVERIFY(parent.children().isEmpty());
                QCOMPARE(CreateInState(entry, state, &parent)->parentWidget(), &parent);
            }
        }
    }

    void upKeyMovesTheThumbOfAnUprightSliderUp()
    {
        const Entry& entry = *FindEntry("ZSlider");
        const auto upright = std::find_if(entry.states.begin(), entry.states.end(),
                                          [](const State& state) { return state.name == "Upright"; });
        const std::unique_ptr<QWidget> slider(CreateInState(entry, *upright, nullptr));
        slider->show();
        auto* thumb = slider->findChild<QToolButton*>();
        const int before = thumb->y();
        QTest::keyClick(thumb, Qt::Key_Up);
        QVERIFY(thumb->y() < before);
    }
};

VX_TEST_MAIN(tst_Catalogue)
#include "tst_Catalogue.moc"
