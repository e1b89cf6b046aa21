#include <UI/Widgets/ScrollablePanelWithItem.h>

#include <Support/EventSpy.h>
#include <Support/Picture.h>
#include <Support/TestCase.h>

#include <QHBoxLayout>
#include <QToolButton>

using Zelkor::Vx::UI::ScrollablePanelWithItem;

namespace {

const char* const SHEET = "* { background: white; border: none; min-height: 20px }"
                          "*[layoutDirection=\"1\"] > QToolButton { background: red; min-height: 40px }";

/// A window with a plain button of Qt and one that is a part of a widget of the library.
struct Scene
{
    Scene()
    {
        auto* layout = new QHBoxLayout(&window);
        layout->addWidget(plain);
        layout->addWidget(panel);
        window.resize(200, 100);
        window.show();
    }

    QWidget window;
    QToolButton* plain = new QToolButton;
    ScrollablePanelWithItem* panel = new ScrollablePanelWithItem(nullptr);
    QToolButton* part = panel->findChild<QToolButton*>("leftScrollButton");
};

} // namespace

class tst_MirroredStyle : public Support::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        qApp->setStyleSheet(QString());
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void rulesOfAWindowFollowTheDirection()
    {
        Scene scene;
        scene.window.setStyleSheet(SHEET);
        for (const auto direction : {Qt::RightToLeft, Qt::LeftToRight}) {
            QApplication::setLayoutDirection(direction);
            const bool mirrored = direction == Qt::RightToLeft;
            for (QToolButton* button : {scene.plain, scene.part}) {
                const QColor color = mirrored ? Qt::red : Qt::white;
                QCOMPARE(button->grab().toImage().pixelColor(1, 1), color);
                QCOMPARE(button->sizeHint().height() > 40, mirrored);
            }
        }
    }

    void otherSheetsPolishNothing()
    {
        Scene scene;
        qApp->setStyleSheet("QToolButton { background: red }");
        int polished = 0;
        Support::EventSpy watch(scene.plain,
                                [&](QEvent::Type type, QEvent*) { polished += type == QEvent::StyleChange; });
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(polished, 0);
    }

    // Each direction asks for the other one.
    void rulesThatContradictEachOtherEnd()
    {
        Scene scene;
        scene.plain->setStyleSheet("QToolButton[layoutDirection=\"0\"] { qproperty-layoutDirection: RightToLeft }"
                                   "QToolButton[layoutDirection=\"1\"] { qproperty-layoutDirection: LeftToRight }");
        scene.plain->setLayoutDirection(Qt::RightToLeft);
        scene.plain->setLayoutDirection(Qt::LeftToRight);
        QVERIFY(scene.plain->isVisible());
    }
};

VX_TEST_MAIN(tst_MirroredStyle)
#include "tst_MirroredStyle.moc"
