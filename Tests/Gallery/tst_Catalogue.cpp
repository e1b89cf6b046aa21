#include <Gallery/Catalogue.h>
#include <Gallery/StyleSheet.h>

#include <Support/TestCase.h>

#include <QPainter>

using namespace Zelkor::Gallery;

namespace {

constexpr QRgb BACKDROP = 0xffff00ff; ///< a colour that the style sheet does not have

/// A place for a widget, whose own pixels are known.
class Backdrop : public QWidget
{
protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), QColor(BACKDROP)); }
};

} // namespace

class tst_Catalogue : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString error;
        ApplyStyleSheet(LoadStyleSheet("dark", error).value());
    }

    void entriesAreWhole()
    {
        for (const Entry& entry : Entries()) {
            // Of two entries with one name, the second would not be found.
            QCOMPARE(FindEntry(entry.className), &entry);
            QVERIFY2(!entry.group.isEmpty() && !entry.description.isEmpty(), qPrintable(entry.className));
            QStringList stateNames;
            for (const State& state : entry.states)
                stateNames.append(state.name);
            QVERIFY2(!stateNames.isEmpty() && stateNames.removeDuplicates() == 0, qPrintable(entry.className));
        }
    }

    void everyStateIsAWidgetToLookAt_data()
    {
        QTest::addColumn<QString>("className");
        for (const Entry& entry : Entries())
            QTest::addRow("%s", qPrintable(entry.className)) << entry.className;
    }

    void everyStateIsAWidgetToLookAt()
    {
        QFETCH(QString, className);
        const Entry& entry = *FindEntry(className);
        for (const State& state : entry.states) {
            InRow(state.name);
            Backdrop backdrop;
            // One that goes before it was shown leaves nothing behind.
            delete CreateInState(entry, state, &backdrop);
            QVERIFY(backdrop.children().isEmpty());

            QWidget* widget = CreateInState(entry, state, &backdrop);
            QCOMPARE(widget->parentWidget(), &backdrop);
            widget->adjustSize();
            backdrop.resize(widget->size());
            backdrop.show();
            QVERIFY(QTest::qWaitForWindowExposed(&backdrop));
            QVERIFY(widget->isVisible() && !widget->size().isEmpty());
            const QImage image = backdrop.grab().toImage().convertToFormat(QImage::Format_RGB32);
            QImage nothing(image.size(), image.format());
            nothing.fill(BACKDROP);
            QVERIFY2(image != nothing, "nothing was painted");
        }
    }
};

VX_TEST_MAIN(tst_Catalogue)
#include "tst_Catalogue.moc"
