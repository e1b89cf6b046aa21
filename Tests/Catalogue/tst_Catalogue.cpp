#include <Catalogue/EntryWindow.h>
#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/TestCase.h>

#include <QSet>
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

    void entryIsComplete_data()
    {
        AddRows([](const Entry& entry) { return QVector<int>{entry.pictured}; });
    }

    void entryIsComplete()
    {
        const Entry& entry = EntryOfRow();
        QVERIFY(!entry.group.isEmpty());
        QVERIFY(!entry.description.isEmpty());
        QSet<QString> names;
        for (const State& state : entry.states)
            names.insert(state.name);
        QCOMPARE(names.size(), entry.states.size());
        QVERIFY(!names.contains(QString()));
    }

    void classNamesAreUnique()
    {
        for (const Entry& entry : Entries())
            QCOMPARE(FindEntry(entry.className), &entry);
    }

    void parentOwnsTheWidget_data() { AddRowsOfAllStates(); }

    void parentOwnsTheWidget()
    {
        QWidget parent;
        // A widget that is deleted before it is shown leaves no object behind.
        delete CreateInState(EntryOfRow(), StateOfRow(), &parent);
        QVERIFY(parent.children().isEmpty());
        QCOMPARE(CreateInState(EntryOfRow(), StateOfRow(), &parent)->parentWidget(), &parent);
    }

    void upKeyMovesTheThumbOfAnUprightSliderUp()
    {
        const Entry& entry = *FindEntry("ZSlider");
        const auto upright = std::find_if(entry.states.begin(), entry.states.end(),
                                          [](const State& state) { return state.name == "Upright"; });
        QVERIFY(upright != entry.states.end());
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
