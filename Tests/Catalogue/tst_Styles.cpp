#include <Catalogue/Catalogue.h>
#include <Catalogue/Contrast.h>
#include <Catalogue/QtWidgets.h>
#include <Examples/Support/BuiltInStyleSheets.h>
#include <UI/Widgets/VolumeSlider.h>

#include <Support/TestCase.h>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QSlider>
#include <QTemporaryDir>
#include <QVBoxLayout>

using namespace Zelkor::Catalogue;
using Zelkor::Examples::LoadStyleSheet;

namespace {

QString ReadText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QMap<QString, QColor> ReadPalette(const QString& name)
{
    QMap<QString, QColor> palette;
    for (const QString& line : ReadText(QString(VX_STYLES_SOURCE "/%1.palette").arg(name)).split('\n')) {
        const QStringList parts = line.split(" = ");
        if (parts.size() == 2 && !line.startsWith("//"))
            palette.insert(parts[0], QColor(parts[1]));
    }
    return palette;
}

} // namespace

class tst_Styles : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("style");
        QTest::newRow("dark") << "Dark"
                              << "dark";
        QTest::newRow("light") << "Light"
                               << "light";
        QTest::newRow("high contrast") << "HighContrast"
                                       << "high-contrast";
    }

    void contrastIsSufficient_data()
    {
        QTest::addColumn<QString>("front");
        QTest::addColumn<QString>("backs");
        QTest::addColumn<double>("least");
        const QString plain = "window surface raised";
        const QString areas = plain + " control control-hover";
        const auto row = [](const char* name, const QString& front, const QString& backs, double least) {
            QTest::newRow(name) << front << backs << least;
        };
        row("text", "text", areas + " control-pressed selection preview", 4.5);
        row("muted text", "text-muted", plain, 4.5);
        row("accent as text", "accent-line", plain, 4.5);
        row("on accent", "on-accent", "accent accent-hover accent-pressed danger danger-pressed", 4.5);
        row("error", "danger-text", "danger-surface", 4.5);
        row("keyboard focus", "accent-line", areas, 3);
        row("edge of fields", "border-strong", plain, 3);
        row("recording", "recording", "window surface", 3);
    }

    void contrastIsSufficient()
    {
        QFETCH_GLOBAL(QString, name);
        QFETCH(QString, front);
        QFETCH(QString, backs);
        QFETCH(double, least);
        const auto palette = ReadPalette(name);
        QVERIFY(palette.contains(front));
        for (const QString& back : backs.split(' ')) {
            QVERIFY2(palette.contains(back), qPrintable(back));
            QVERIFY2(Contrast(palette[front], palette[back]) >= least, qPrintable(back));
        }
    }

    void iconsNeverLoadFromTheCurrentFolder()
    {
        QTemporaryDir folder;
        const QString previous = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        QImage red(16, 16, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save("vxstyle:mark.svg", "PNG"));
        QCOMPARE(QImage("vxstyle:mark.svg"), red);

        QFETCH_GLOBAL(QString, style);
        ZStyleSheet sheet = *LoadStyleSheet(style);
        sheet.text += "\nQLabel { background-image: url(vxstyle:mark.svg); }";
        sheet.apply();
        QLabel label;
        label.resize(16, 16);
        // Qt warns at each attempt to load the missing icon, also in its variants for high resolutions.
        for (int attempt = 0; attempt < 3; ++attempt)
            ExpectWarning("mark.svg");
        QVERIFY(label.grab().toImage().pixelColor(8, 8) != Qt::red);
        QVERIFY(!qApp->styleSheet().contains("vxstyle:"));
        QVERIFY(ZStyleSheet::icon("mark").pixmap(16).isNull());
        QVERIFY(QDir::setCurrent(previous));
    }

    // Qt 5 compares the name of an enumerator instead, once its type is registered.
    void selectorsMatchNumbersOfEnumerators()
    {
        QVERIFY(!Entries().isEmpty());
        QSlider slider(Qt::Horizontal);
        slider.setStyleSheet("[orientation=\"1\"] { background: red; }");
        QFrame frame;
        frame.setFrameStyle(QFrame::StyledPanel);
        frame.setStyleSheet("[frameShape=\"6\"] { background: red; }");
        for (QWidget* widget : {static_cast<QWidget*>(&slider), static_cast<QWidget*>(&frame)})
            QCOMPARE(widget->grab().toImage().pixelColor(4, 4), QColor(Qt::red));
    }

    void sheetReplacesStyleAndSheetOfTheApplication()
    {
        qApp->setStyleSheet(QString());
        QApplication::setStyle("Windows");
        QWidget window;
        QVBoxLayout layout(&window);
        for (const State& state : QtWidgetsEntry().states)
            layout.addWidget(CreateInState(QtWidgetsEntry(), state, &window));
        qApp->setStyleSheet("QPushButton { color: red; }");
        window.show();
        QFETCH_GLOBAL(QString, style);
        LoadStyleSheet(style)->apply();
        QCoreApplication::processEvents();
        QCOMPARE(window.grab().toImage().pixelColor(1, 1), QApplication::palette().color(QPalette::Window));
    }

    void levelMeterIsVisibleInBothDirections()
    {
        QFETCH_GLOBAL(QString, style);
        LoadStyleSheet(style)->apply();
        QWidget window;
        Zelkor::Vx::VolumeSlider slider(Qt::Horizontal, &window);
        slider.resize(200, 44);
        slider.SetVolumes(1, 0);
        window.show();
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            slider.setLayoutDirection(direction);
            QCOMPARE(slider.grab().toImage().pixelColor(slider.rect().center()),
                     slider.property("colorBackground").value<QColor>());
        }
    }

    void styleSheetIsComplete()
    {
        QFETCH_GLOBAL(QString, style);
        const auto sheet = LoadStyleSheet(style);
        QVERIFY(sheet);
        static const QRegularExpression PLACEHOLDER("@[a-z-]+@");
        QVERIFY(!sheet->text.contains(PLACEHOLDER));
        QStringList urls = sheet->text.split("url(").mid(1);
        for (const Entry& entry : Entries()) {
            QVERIFY2(sheet->text.contains("/* ==== " + entry.styleSection + " ="), qPrintable(entry.className));
            urls.append("vxstyle:" + entry.icon + ".svg");
        }
        // A syntax error is a warning, which fails the test.
        sheet->apply();
        QWidget().ensurePolished();
        for (const QString& url : urls) {
            const QString icon = url.section(')', 0, 0);
            QVERIFY2(icon.startsWith("vxstyle:"), qPrintable(icon));
            QVERIFY2(!QImage(icon).isNull(), qPrintable(icon));
            QVERIFY2(!ReadText(icon).contains(PLACEHOLDER), qPrintable(icon));
        }
    }
};

VX_TEST_MAIN(tst_Styles)
#include "tst_Styles.moc"
