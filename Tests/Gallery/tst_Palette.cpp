#include <Examples/Support/Appearance.h>
#include <Gallery/Inspector/ColorField.h>
#include <Gallery/Palette/PaletteEditor.h>

#include <Support/TestCase.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Zelkor;
using namespace Zelkor::Gallery;

namespace {

QByteArray Contents(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot open");
}

} // namespace

class tst_Palette : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sheetIsThatOfTheBuild_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : Palette::BuiltInNames())
            QTest::newRow(qPrintable(name)) << name;
    }

    void sheetIsThatOfTheBuild()
    {
        QFETCH(QString, name);
        QCOMPARE(WriteStyleSheet(Palette::BuiltIn(name), name, folder.path()), folder.filePath(name + ".qss"));
        QCOMPARE(Contents(folder.filePath(name + ".qss")), Contents(":/Styles/" + name + ".qss"));
        const QDir built(":/Styles/" + name);
        QCOMPARE(QDir(folder.filePath(name)).entryList(QDir::Files), built.entryList(QDir::Files));
        for (const QString& icon : built.entryList(QDir::Files))
            QCOMPARE(Contents(folder.filePath(name + '/' + icon)), Contents(built.filePath(icon)));
    }

    void changedColorIsAppliedAndSaved()
    {
        Examples::Appearance appearance("VxGallery");
        QVERIFY(appearance.SetStyle("dark"));
        PaletteEditor editor(&appearance);
        editor.show();
        QCOMPARE(editor.findChild<ColorField*>("window")->Color(), Palette::BuiltIn("Dark").Color("window"));
        auto* field = editor.findChild<ColorField*>("window");
        field->clear();
        QTest::keyClicks(field, "#123456\r");
        QTRY_COMPARE(editor.grab().toImage().pixelColor(1, 1), QColor("#123456"));
        const QString file = folder.filePath("Mine.palette");
        QVERIFY(editor.Save(file));
        // Does not ask.
        QVERIFY(editor.ConfirmDiscard());
        QCOMPARE(Contents(file),
                 Palette::BuiltIn("Dark").Text().toUtf8().replace("window = #15171c", "window = #123456"));
        editor.SetPalette(Palette::BuiltIn("Light"));
        QVERIFY(editor.Load(file));
        QCOMPARE(editor.findChild<ColorField*>("window")->Color(), QColor("#123456"));
        // Another window continues with the colours.
        QCOMPARE(PaletteEditor(&appearance).findChild<ColorField*>("window")->Color(), QColor("#123456"));
        QFile incomplete(file);
        QVERIFY(incomplete.open(QIODevice::WriteOnly));
        incomplete.write("window = #112233\n");
        incomplete.close();
        QVERIFY(!editor.Load(file));
        QCOMPARE(editor.findChild<ColorField*>("window")->Color(), QColor("#123456"));
    }

    void editorShowsTheColorsOfTheStyle()
    {
        Examples::Appearance appearance("VxGallery");
        QVERIFY(appearance.SetStyle("system"));
        PaletteEditor editor(&appearance);
        editor.show();
        const auto color = [&] { return editor.findChild<ColorField*>("window")->Color(); };
        QCOMPARE(color(), editor.grab().toImage().pixelColor(1, 1));
        QVERIFY(appearance.SetStyle("high-contrast"));
        QTRY_COMPARE(color(), Palette::BuiltIn("HighContrast").Color("window"));
    }

    void badPalettesAreRefused()
    {
        QVERIFY(!Palette::Parse("window = red"));
        QString error;
        QCOMPARE(WriteStyleSheet(*Palette::Parse("window = #000000\n"), "Bad", folder.path(), &error), QString());
        QVERIFY2(error.contains('@'), qPrintable(error));
    }

private:
    QTemporaryDir folder;
};

VX_TEST_MAIN(tst_Palette)
#include "tst_Palette.moc"
