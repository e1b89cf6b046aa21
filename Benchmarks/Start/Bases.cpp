// Constructs each Qt class of the arguments once and exits: the start-up cost without the library.

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGraphicsEffect>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// QGraphicsEffect is abstract.
class PlainEffect : public QGraphicsEffect
{
public:
    using QGraphicsEffect::QGraphicsEffect;

protected:
    void draw(QPainter* painter) override { drawSource(painter); }
};

template<class Object>
void Make(QWidget* window)
{
    new Object(window);
}

struct Maker
{
    const char* className;
    void (*make)(QWidget* window);
};

constexpr Maker MAKERS[] = {
    {"QObject", Make<QObject>},
    {"QWidget", Make<QWidget>},
    {"QFrame", Make<QFrame>},
    {"QDialog", Make<QDialog>},
    {"QPushButton", Make<QPushButton>},
    {"QToolButton", Make<QToolButton>},
    {"QComboBox", Make<QComboBox>},
    {"QSlider", Make<QSlider>},
    {"QTabBar", Make<QTabBar>},
    {"QTabWidget", Make<QTabWidget>},
    {"QStackedWidget", Make<QStackedWidget>},
    {"QGraphicsEffect", Make<PlainEffect>},
};

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QWidget window;
    new QVBoxLayout(&window);
    for (int i = 1; i < argc; ++i) {
        bool known = false;
        for (const Maker& maker : MAKERS) {
            if (std::strcmp(maker.className, argv[i]) == 0) {
                maker.make(&window);
                known = true;
            }
        }
        if (!known) {
            std::fprintf(stderr, "VxStartBases: cannot make a %s\n", argv[i]);
            return EXIT_FAILURE;
        }
    }
    std::_Exit(EXIT_SUCCESS);
}
