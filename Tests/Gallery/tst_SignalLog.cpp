#include <Catalogue/Catalogue.h>
#include <Gallery/Browser/StateCard.h>
#include <Gallery/Browser/WidgetPage.h>
#include <Gallery/Inspector/SignalLog.h>
#include <UI/Widgets/ColorButton.h>

#include <Support/TestCase.h>

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolButton>

using namespace Zelkor::Catalogue;
using namespace Zelkor::Gallery;

namespace {

class Emitter : public QCheckBox
{
    Q_OBJECT

Q_SIGNALS:
    void Nothing();
    void Told(const QString& text, int number = 7);
    void Colored(const QColor& color);
    void Pointed(QWidget* widget);
    void Sized(const QSize& size);
};

QStringList LinesOf(const QWidget& owner)
{
    static const QRegularExpression TIME("^\\d\\d:\\d\\d:\\d\\d\\.\\d{3}   ");
    QStringList lines;
    for (QString line : owner.findChild<QPlainTextEdit*>()->toPlainText().split('\n', Qt::SkipEmptyParts))
        lines.append(line.contains(TIME) ? line.remove(TIME) : "no time: " + line);
    return lines;
}

} // namespace

class tst_SignalLog : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheSignalsOfTheClassAndTheirArguments()
    {
        SignalLog log;
        Emitter emitter;
        emitter.setObjectName("box");
        log.Watch(&emitter, "Emitter", "State");
        QVERIFY(log.findChild<QPlainTextEdit*>()->placeholderText().contains("listed"));
        Q_EMIT emitter.Nothing();
        Q_EMIT emitter.Told("a \"word\"");
        Q_EMIT emitter.Colored(QColor(1, 2, 3, 128));
        Q_EMIT emitter.Pointed(&emitter);
        Q_EMIT emitter.Pointed(nullptr);
        Q_EMIT emitter.Sized(QSize(1, 2));
        // Those of its bases are not its own.
        emitter.click();
        QCOMPARE(LinesOf(log),
                 QStringList({"State   Nothing()", "State   Told(\"a \"word\"\", 7)", "State   Colored(#80010203)",
                              "State   Pointed(Emitter \"box\")", "State   Pointed(null)", "State   Sized(QSize)"}));
        log.findChild<QToolButton*>()->click();
        QCOMPARE(LinesOf(log), QStringList());
    }

    void takesTheSignalsOfBasesWhereThereAreNoOthers()
    {
        SignalLog log;
        QWidget silent;
        log.Watch(&silent, "ZFrame", "Silent");
        QVERIFY(log.findChild<QPlainTextEdit*>()->placeholderText().contains("no signals"));

        QCheckBox box;
        log.Watch(&box, "QCheckBox", "Box");
        QPushButton button;
        button.setCheckable(true);
        log.Watch(&button, "QPushButton", "Button");
        box.click();
        button.click();
        QCOMPARE(LinesOf(log), QStringList({"Box   stateChanged(2)", "Button   pressed()", "Button   toggled(true)",
                                            "Button   released()", "Button   clicked(true)"}));
    }

    void isBoundedAndSurvivesWhatDies()
    {
        SignalLog log;
        auto* emitter = new Emitter;
        log.Watch(emitter, "Emitter", "State");
        for (int i = 0; i < 600; ++i)
            Q_EMIT emitter->Told(QString(1000, 'x'), i);
        QCOMPARE(LinesOf(log).size(), 500);
        QVERIFY(LinesOf(log).last().endsWith("x…\", 599)"));
        connect(emitter, &Emitter::Nothing, emitter, [emitter] { delete emitter; });
        Q_EMIT emitter->Nothing();
        QVERIFY(LinesOf(log).last().endsWith("Nothing()"));

        auto* preset = FindEntry("FastPresetButton")->create(nullptr);
        log.Watch(preset, "FastPresetButton", "Preset");
        qobject_cast<QAbstractButton*>(preset)->click();
        QCOMPARE(LinesOf(log).last(), QString("Preset   Clicked(QAction \"\")"));
        delete preset;

        // The log of a page that goes while a signal is told.
        auto* page = new WidgetPage(*FindEntry("ColorButton"));
        auto* button = page->findChild<StateCard*>()->findChild<Zelkor::Vx::ColorButton*>();
        auto* pageLog = page->findChild<SignalLog*>();
        connect(button, &Zelkor::Vx::ColorButton::ColorChanged, pageLog, [pageLog] {
            QCOMPARE(LinesOf(*pageLog), QStringList("Opaque   ColorChanged(#ff000000)"));
            delete pageLog;
        });
        button->SetColor(Qt::black);
        QVERIFY(!page->findChild<SignalLog*>());
        button->SetColor(Qt::white);
        delete page;
    }
};

VX_TEST_MAIN(tst_SignalLog)
#include "tst_SignalLog.moc"
