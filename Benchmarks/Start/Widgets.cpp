// Constructs each exported class once and exits: the start-up cost with the library. With --bases it prints their Qt
// base classes instead.

#include <ExportedClasses.h>

#include <QAction>
#include <QApplication>
#include <QVBoxLayout>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <type_traits>

using namespace Zelkor;

namespace {

template<class Object>
void Make(QWidget* window)
{
    // The window owns the objects; the program exits before it deletes them.
    if constexpr (std::is_constructible_v<Object, QWidget*>)
        new Object(window);
    else if constexpr (std::is_constructible_v<Object, Qt::Orientation, QWidget*>)
        new Object(Qt::Horizontal, window);
    else if constexpr (std::is_constructible_v<Object, QWidget*, Qt::WindowFlags>)
        new Object(window, Qt::WindowFlags());
    else if constexpr (std::is_constructible_v<Object, QAction*, QString, QWidget*>)
        new Object(new QAction(window), QString(), window);
    else if constexpr (std::is_constructible_v<Object, QString, QString, QString, QWidget*>)
        new Object(QString(), QString(), QString(), window);
    else
        new Object(new Vx::UI::VideoPreviewWidget(window));
}

template<class Object>
void PrintBase()
{
    const QMetaObject* base = &Object::staticMetaObject;
    while (base->className()[0] != 'Q')
        base = base->superClass();
    std::puts(base->className());
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc == 2 && std::strcmp(argv[1], "--bases") == 0) {
#define X(Class) PrintBase<Class>();
#include <ExportedClassList.h>
#undef X
        return EXIT_SUCCESS;
    }
    const QApplication application(argc, argv);
    QWidget window;
    new QVBoxLayout(&window);
#define X(Class) Make<Class>(&window);
#include <ExportedClassList.h>
#undef X
    std::_Exit(EXIT_SUCCESS);
}
