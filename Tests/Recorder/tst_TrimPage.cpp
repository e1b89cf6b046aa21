#include <Gallery/StyleSheet.h>
#include <Gallery/TrimPage.h>

#include <Support/Input.h>
#include <Support/Mouse.h>
#include <Support/TestCase.h>

#include <UI/Kit/ZSliderThumb.h>
#include <UI/Kit/ZTimeEdit.h>
#include <UI/Kit/ZTimelineSlider.h>

#include <QLineEdit>

using namespace Zelkor::Gallery;

namespace {

constexpr qint64 DURATION = 300000;

QString Text(const QVector<TrimModel::Range>& ranges)
{
    QStringList texts;
    for (const TrimModel::Range& range : ranges)
        texts += QString("%1-%2").arg(range.from).arg(range.to);
    return texts.join(' ');
}

/// The page as a person has it before them.
struct Trimmer
{
    Trimmer()
    {
        page.resize(900, 500);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
    }

    QString Shown() const
    {
        QStringList fields;
        for (const char* name : {"startField", "endField"})
            fields += page.findChild<ZTimeEdit*>(name)->text();
        return fields.join(' ');
    }

    TrimPage page;
    ZTimelineSlider* timeline = page.findChild<ZTimelineSlider*>("timeline");
    ZSliderThumb* start = timeline->thumb("left");
};

} // namespace

class tst_TrimPage : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString error;
        ApplyStyleSheet(LoadStyleSheet("dark", error).value());
    }

    void modelKeepsWhatIsNotCut()
    {
        TrimModel model(1000);
        model.CutOut(300, 200);
        model.CutOut(250, 400);
        model.CutOut(900, 900);
        model.CutOut(600, 700);
        QCOMPARE(Text(model.Pieces()), QString("0-200 400-600 700-1000"));
        // A cut that is out of what is kept comes back with it.
        model.SetStart(350);
        model.SetEnd(650);
        QCOMPARE(Text(model.Pieces()), QString("400-600"));
        QCOMPARE(model.ResultDuration(), 200);
        model.SetEnd(-5);
        QCOMPARE(model.Current().kept.to, 390);
        QCOMPARE(model.ResultDuration(), 0);
        model.SetStart(0);
        model.SetEnd(5000);
        QCOMPARE(Text(model.Pieces()), QString("0-200 400-600 700-1000"));
        while (model.CanUndo())
            model.Undo();
        QCOMPARE(Text(model.Pieces()), QString("0-1000"));
        while (model.CanRedo())
            model.Redo();
        QCOMPARE(Text(model.Pieces()), QString("0-200 400-600 700-1000"));
    }

    void dragByTheRealMouseIsOneStep()
    {
        Trimmer trimmer;
        const QPoint grip = trimmer.start->mapToGlobal(trimmer.start->rect().center());
        Support::Drag(grip, QPoint(150, 0));
        QTRY_VERIFY(trimmer.timeline->segments().constFirst().from > 1000);
        QTRY_VERIFY(!trimmer.start->isDown());
        QVERIFY(trimmer.Shown() != "00:00.000 05:00.000");
        QCOMPARE(trimmer.start->value(), trimmer.timeline->segments().constFirst().from);
        QTest::keySequence(&trimmer.page, QKeySequence::Undo);
        QCOMPARE(trimmer.Shown(), QString("00:00.000 05:00.000"));
        QCOMPARE(trimmer.start->value(), 0);
        QTest::keySequence(&trimmer.page, QKeySequence::Redo);
        QVERIFY(trimmer.start->value() > 1000);
    }

    void escapeTakesBackTheDrag()
    {
        Trimmer trimmer;
        const QPoint grip = trimmer.start->rect().center();
        QTest::mousePress(trimmer.start, Qt::LeftButton, {}, grip);
        for (int i = 0; i < 10; ++i)
            Support::MoveMouse(trimmer.start, grip + QPoint(10, 0));
        QVERIFY(trimmer.start->value() > 0);
        QTest::keyClick(&trimmer.page, Qt::Key_Escape);
        QCOMPARE(trimmer.Shown(), QString("00:00.000 05:00.000"));
        Support::MoveMouse(trimmer.start, grip + QPoint(10, 0));
        QTest::mouseRelease(trimmer.start, Qt::LeftButton, {}, grip);
        QCOMPARE(trimmer.Shown(), QString("00:00.000 05:00.000"));
        QCOMPARE(trimmer.start->value(), 0);
        QTest::keySequence(&trimmer.page, QKeySequence::Undo);
        QCOMPARE(trimmer.Shown(), QString("00:00.000 05:00.000"));
    }

    void keysAloneTrimAndCut()
    {
        Trimmer trimmer;
        auto* field = trimmer.page.findChild<ZTimeEdit*>("startField");
        field->setFocus();
        field->findChild<QLineEdit*>()->setCursorPosition(1);
        QTest::keyClick(field, Qt::Key_1);
        QCOMPARE(trimmer.Shown(), QString("01:00.000 05:00.000"));
        QCOMPARE(trimmer.start->value(), trimmer.timeline->valueOf(60000));

        trimmer.timeline->setFocus();
        trimmer.timeline->setTime(DURATION / 2);
        QTest::keyClick(trimmer.timeline, Qt::Key_X);
        QVERIFY(trimmer.timeline->thumb("mark"));
        trimmer.timeline->setTime(DURATION);
        QTest::keyClick(trimmer.timeline, Qt::Key_X);
        QVERIFY(!trimmer.timeline->thumb("mark"));
        QCOMPARE(trimmer.timeline->segments().size(), 1);
        QCOMPARE(trimmer.timeline->segments().constFirst().to, trimmer.timeline->valueOf(DURATION / 2));
    }
};

VX_TEST_MAIN(tst_TrimPage)
#include "tst_TrimPage.moc"
