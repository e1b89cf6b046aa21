#include <Lib/UI/Kit/SliderFixture.h>

#include <Support/PaintSpy.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

namespace {

/// With a colour for each part and no thumb.
struct Slider : Trimmer
{
    Slider()
    {
        setGrooveEmptyStyle("background: white");
        setGrooveNormalStyle("background: lime");
        setGrooveSelectedStyle("background: blue");
        setGrooveBorderStyle("background: red");
        defaultThumb()->hide();
    }

    // Returns the colours at these pixels along the groove.
    QString colorsAt(const QVector<int>& pixels)
    {
        static const QMap<QRgb, QString> NAMES{{0xffffffff, "white"}, {0xff00ff00, "lime"}, {0xff0000ff, "blue"},
                                               {0xffff0000, "red"},   {0xff808080, "gray"}, {0, "none"}};
        const QImage image = grab().toImage();
        QStringList names;
        for (const int pixel : pixels) {
            const QPoint point = orientation() == Qt::Horizontal ? QPoint(pixel, 15) : QPoint(15, pixel);
            names << NAMES.value(Support::ColorAt(image, point).rgba(), "?");
        }
        return names.join(' ');
    }
};

} // namespace

class tst_SliderGroove : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void segmentsHaveTheirStyles()
    {
        Slider slider;
        slider.setSegments({{20, 40, false}, {80, 60, true}, {150, 100, true}});
        QCOMPARE(slider.colorsAt({30, 46, 47, 85, 86, 87}), "white red lime lime red white");
        QCOMPARE(slider.colorsAt({126, 150, 166, 205, 3}), "red blue red white none");
        slider.clearSegments();
        slider.addSegment(0, 50);
        slider.setOrientation(Qt::Vertical);
        slider.resize(30, 212);
        QCOMPARE(slider.colorsAt({20, 150}), "lime white");
    }

    void grooveIsRenderedAgainAfterChanges()
    {
        Slider slider;
        slider.setSubPageStyle("background: red");
        slider.setAddPageStyle("background: blue; /* %1 and } */");
        for (const int value : {50, 10, 90}) {
            slider.setValue(value);
            QCOMPARE(slider.colorsAt({2 * value, 2 * value + 12}), "red blue");
        }
        slider.setLayoutDirection(Qt::RightToLeft);
        slider.setSubPageStyle("background: red } QSlider::sub-page:horizontal:disabled { background: gray");
        QCOMPARE(slider.colorsAt({20}), "red");
        slider.setEnabled(false);
        QCOMPARE(slider.colorsAt({20}), "gray");
        ExpectWarning("braces or quotes do not match");
        slider.setSubPageStyle("background: red } }");
        slider.setAddPageStyle({});
        QCOMPARE(slider.colorsAt({20}), "white");
        slider.setGrooveEmptyStyle("background: palette(window)");
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(Qt::black, Qt::blue));
        QCOMPARE(slider.colorsAt({20}), "blue");
        QApplication::setPalette(before);

        // If the groove does not depend on the value, only the thumb is repainted.
        slider.setEnabled(true);
        slider.setGrooveEmptyStyle("background: white");
        slider.defaultThumb()->show();
        slider.show();
        QVERIFY(QTest::qWaitForWindowExposed(&slider));
        Support::PaintSpy paints(&slider);
        slider.setValue(91);
        const auto painted = paints.Take();
        QCOMPARE(painted.size(), 1);
        QVERIFY(painted[0].boundingRect().width() < 20);
    }
};

VX_TEST_MAIN(tst_SliderGroove)
#include "tst_SliderGroove.moc"
