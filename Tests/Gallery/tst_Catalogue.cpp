#include <Gallery/Catalogue.h>
#include <Gallery/StyleSheet.h>

#include <Support/TestCase.h>

#include <QPainter>
#include <QPointer>
#include <QSet>

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

QImage GrabWithRatio(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int CountBackdrop(const QImage& image, const QRect& rect)
{
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x)
            count += image.pixel(x, y) == BACKDROP;
    }
    return count;
}

} // namespace

class tst_Catalogue : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void entriesAreWhole()
    {
        QSet<QString> classNames;
        for (const Entry& entry : Entries()) {
            QVERIFY2(!classNames.contains(entry.className), qPrintable(entry.className));
            classNames.insert(entry.className);
            QCOMPARE(FindEntry(entry.className), &entry);
            QVERIFY2(!entry.group.isEmpty() && !entry.description.isEmpty(), qPrintable(entry.className));
            QVERIFY2(!entry.states.isEmpty(), qPrintable(entry.className));
            QSet<QString> stateNames;
            for (const State& state : entry.states)
                stateNames.insert(state.name);
            QVERIFY2(stateNames.size() == entry.states.size(), qPrintable(entry.className));
        }
        QVERIFY(!FindEntry("NoWidget"));
    }

    void everyStateInEveryScene_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("stateIndex");
        QTest::addColumn<QString>("style");
        QTest::addColumn<bool>("rightToLeft");
        for (const Entry& entry : Entries()) {
            for (int i = 0; i < entry.states.size(); ++i) {
                for (const char* style : {"dark", "light"}) {
                    for (const bool rightToLeft : {false, true}) {
                        QTest::addRow("%s, %s, %s%s", qPrintable(entry.className), qPrintable(entry.states[i].name),
                                      style, rightToLeft ? ", right to left" : "")
                            << entry.className << i << style << rightToLeft;
                    }
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
        UseStyle(style);
        QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);

        auto backdrop = std::make_unique<Backdrop>();
        const Entry& entry = *FindEntry(className);
        const QPointer<QWidget> widget = CreateInState(entry, entry.states[stateIndex], backdrop.get());
        QCOMPARE(widget->parentWidget(), backdrop.get());
        widget->adjustSize();
        widget->move(MARGIN, MARGIN);
        backdrop->resize(widget->size() + QSize(2 * MARGIN, 2 * MARGIN));
        backdrop->show();
        QVERIFY(QTest::qWaitForWindowExposed(backdrop.get()));
        QVERIFY(widget->isVisible() && !widget->size().isEmpty());

        const QImage image = GrabWithRatio(*backdrop);
        const int ratio = int(image.width() / backdrop->width());
        QCOMPARE(image.size(), backdrop->size() * ratio);
        const QRect geometry = widget->geometry();
        const QRect inside(geometry.topLeft() * ratio, geometry.size() * ratio);
        const int backdropInside = CountBackdrop(image, inside);
        QVERIFY2(backdropInside < inside.width() * inside.height(), "nothing was painted");
        // All around the widget, the backdrop is as it was.
        QCOMPARE(CountBackdrop(image, image.rect()) - backdropInside,
                 image.width() * image.height() - inside.width() * inside.height());

        // Deleted as it stands there, with whatever it has under way.
        backdrop.reset();
        QVERIFY(!widget);
        QCoreApplication::processEvents();
    }

    void deletedBeforeItWasShown()
    {
        for (const Entry& entry : Entries()) {
            for (const State& state : entry.states) {
                QWidget parent;
                delete CreateInState(entry, state, &parent);
                QVERIFY2(parent.children().isEmpty(), qPrintable(entry.className + ", " + state.name));
            }
        }
        QCoreApplication::processEvents();
    }

private:
    // A sheet is read anew only when it changes, which costs more than all the rest.
    void UseStyle(const QString& style)
    {
        if (style == currentStyle)
            return;
        QString error;
        const auto sheet = LoadStyleSheet(style, error);
        QVERIFY2(sheet, qPrintable(error));
        ApplyStyleSheet(*sheet);
        currentStyle = style;
    }

    QString currentStyle;
};

VX_TEST_MAIN(tst_Catalogue)
#include "tst_Catalogue.moc"
