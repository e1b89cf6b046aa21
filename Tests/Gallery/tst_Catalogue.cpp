#include <Gallery/Catalogue.h>
#include <Gallery/StyleSheet.h>

#include <Support/TestCase.h>

#include <QPainter>

#include <memory>

using namespace Zelkor::Gallery;

namespace {

constexpr QRgb BACKDROP = 0xffff00ff; ///< a colour that neither style sheet has
constexpr int MARGIN = 24;

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

    void everyStateInEveryScene_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("stateIndex");
        QTest::addColumn<QString>("style");
        QTest::addColumn<bool>("rightToLeft");
        for (const Entry& entry : Entries()) {
            for (int i = 0; i < entry.states.size(); ++i) {
                const QString name = entry.className + ", " + entry.states[i].name;
                for (const char* style : {"dark", "light"}) {
                    QTest::addRow("%s, %s", qPrintable(name), style) << entry.className << i << style << false;
                    QTest::addRow("%s, %s, right to left", qPrintable(name), style)
                        << entry.className << i << style << true;
                }
            }
        }
    }

    void everyStateInEveryScene()
    {
        QFETCH(QString, className);
        QFETCH(int, stateIndex);
        QFETCH(QString, style);
        QFETCH(bool, rightToLeft);
        QString error;
        ApplyStyleSheet(LoadStyleSheet(style, error).value());
        QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        const Entry& entry = *FindEntry(className);
        auto backdrop = std::make_unique<Backdrop>();
        // One that goes before it was shown leaves nothing behind.
        delete CreateInState(entry, entry.states[stateIndex], backdrop.get());
        QVERIFY(backdrop->children().isEmpty());

        QWidget* widget = CreateInState(entry, entry.states[stateIndex], backdrop.get());
        QCOMPARE(widget->parentWidget(), backdrop.get());
        widget->adjustSize();
        widget->move(MARGIN, MARGIN);
        backdrop->resize(widget->size() + QSize(2 * MARGIN, 2 * MARGIN));
        backdrop->show();
        QVERIFY(QTest::qWaitForWindowExposed(backdrop.get()));
        QVERIFY(widget->isVisible() && !widget->size().isEmpty());

        QImage image = backdrop->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const int ratio = image.width() / backdrop->width();
        QCOMPARE(image.size(), backdrop->size() * ratio);
        image.setDevicePixelRatio(1);
        const QRect inside(widget->pos() * ratio, widget->size() * ratio);
        QImage expected(image.size(), image.format());
        expected.fill(BACKDROP);
        QVERIFY2(image != expected, "nothing was painted");
        // All around the widget, the backdrop is as it was.
        QPainter(&expected).drawImage(inside, image, inside);
        QVERIFY2(image == expected, "painted outside of the widget");

        // Deleted as it stands there, with whatever it has under way.
        backdrop.reset();
        QCoreApplication::processEvents();
    }
};

VX_TEST_MAIN(tst_Catalogue)
#include "tst_Catalogue.moc"
