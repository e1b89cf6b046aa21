#include <Catalogue/RandomEvents.h>

#include <QApplication>
#include <QColorDialog>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QtTest>

#include <array>
#include <numeric>

namespace {

constexpr int OVERHANG = 6; ///< pixels around the widget that the mouse gets to
constexpr QSize LARGEST(640, 400);
constexpr int EVENTS_IN_NESTED_LOOP = 4;
constexpr std::array<Qt::MouseButton, 4> BUTTONS{Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
constexpr std::array<int, 26> KEYS{
    Qt::Key_Space,  Qt::Key_Return,    Qt::Key_Enter,  Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Left,
    Qt::Key_Right,  Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Home,   Qt::Key_End,  Qt::Key_PageUp,  Qt::Key_PageDown,
    Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Insert, Qt::Key_F2,     Qt::Key_F3,   Qt::Key_F4,      Qt::Key_Menu,
    Qt::Key_Shift,  Qt::Key_Control,   Qt::Key_Alt,    Qt::Key_Plus,   Qt::Key_Minus};

// Mostly none.
Qt::KeyboardModifiers Modifiers(quint32 draw)
{
    Qt::KeyboardModifiers modifiers;
    if (draw % 5 == 0)
        modifiers |= Qt::ShiftModifier;
    if (draw / 5 % 6 == 0)
        modifiers |= Qt::ControlModifier;
    if (draw / 30 % 15 == 0)
        modifiers |= Qt::AltModifier;
    return modifiers;
}

void Send(QWidget* receiver, QEvent& event)
{
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::sendEvent(receiver, &event);
}

const ZStyleSheet& Sheet(int index)
{
    using Zelkor::Examples::LoadStyleSheet;
    static const ZStyleSheet dark = *LoadStyleSheet("dark");
    static const std::array<ZStyleSheet, 3> sheets{dark, *LoadStyleSheet("light"), {QString(), dark.iconFolder}};
    return sheets[std::size_t(index)];
}

} // namespace

QString MarkingTranslator::translate(const char*, const char* sourceText, const char*, int) const
{
    return QStringLiteral("[~~ %1 ~~]").arg(QString::fromUtf8(sourceText));
}

const std::vector<RandomEvents::Kind> RandomEvents::KINDS{
    {3000, &RandomEvents::Move},       {1500, &RandomEvents::Press},      {1500, &RandomEvents::Release},
    {200, &RandomEvents::DoubleClick}, {800, &RandomEvents::Wheel},       {150, &RandomEvents::Enter},
    {150, &RandomEvents::Leave},       {100, &RandomEvents::ContextMenu}, {4000, &RandomEvents::Key},
    {300, &RandomEvents::Focus},       {100, &RandomEvents::Activate},    {300, &RandomEvents::Resize},
    {150, &RandomEvents::Enable},      {150, &RandomEvents::Show},        {50, &RandomEvents::Direction},
    {20, &RandomEvents::Font},         {20, &RandomEvents::Language},     {2, &RandomEvents::Style},
    {30, &RandomEvents::Paint},        {150, &RandomEvents::PassLoop},
};

RandomEvents::RandomEvents(QWidget* host, QWidget* widget, quint64 seed)
    : host(host), widget(widget), loops([this](QWidget* window) { ActIn(window); })
{
    std::seed_seq sequence{quint32(seed), quint32(seed >> 32)};
    random.seed(sequence);
    nestedRandom.seed(sequence);
    host->setUpdatesEnabled(false);
}

RandomEvents::~RandomEvents()
{
    if (isTranslated)
        QCoreApplication::removeTranslator(&translator);
}

void RandomEvents::Next()
{
    Do(DrawFrom(random));
}

RandomEvents::Draw RandomEvents::DrawFrom(std::mt19937& generator)
{
    Draw draw{};
    for (quint32* number : {&draw.kind, &draw.place, &draw.x, &draw.y, &draw.detail, &draw.modifiers})
        *number = quint32(generator());
    return draw;
}

void RandomEvents::Do(const Draw& draw)
{
    static const int sum =
        std::accumulate(KINDS.begin(), KINDS.end(), 0, [](int value, const Kind& kind) { return value + kind.weight; });
    if (!host || !widget)
        return;
    // The real file system is none of our toys, and its dialog goes before anything else happens.
    if (qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
        return PassLoop(draw);
    int left = int(draw.kind % quint32(sum));
    for (const Kind& kind : KINDS) {
        left -= kind.weight;
        if (left < 0)
            return (this->*kind.send)(draw);
    }
}

// What is open gets the events, else one of the windows that there are: as a rule there is but the host.
QWidget* RandomEvents::Window(const Draw& draw) const
{
    if (QWidget* popUp = QApplication::activePopupWidget())
        return popUp;
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    std::vector<QWidget*> windows{host};
    for (auto* part : host->findChildren<QWidget*>()) {
        if (part->isWindow() && part->isVisible())
            windows.push_back(part);
    }
    return windows[draw.place % windows.size()];
}

// The widget itself, or one of its visible parts.
QWidget* RandomEvents::Part(const Draw& draw) const
{
    std::vector<QWidget*> parts{widget};
    for (auto* part : widget->findChildren<QWidget*>()) {
        if (part->isVisible() && !part->isWindow())
            parts.push_back(part);
    }
    return parts[draw.place % parts.size()];
}

void RandomEvents::SendMouse(QEvent::Type type, const Draw& draw)
{
    QWidget* window = Window(draw);
    const QRect area =
        (window == host ? widget->geometry() : window->rect()).adjusted(-OVERHANG, -OVERHANG, OVERHANG, OVERHANG);
    const QPoint place = area.topLeft() + QPoint(int(draw.x % quint32(qMax(area.width(), 1))),
                                                 int(draw.y % quint32(qMax(area.height(), 1))));
    QWidget* receiver = window->childAt(place);
    if (pressed && type != QEvent::MouseButtonPress)
        receiver = pressed;
    if (!receiver)
        receiver = window;
    const QPoint global = window->mapToGlobal(place);
    const Qt::MouseButton button = BUTTONS[draw.detail % BUTTONS.size()];
    const bool isMove = type == QEvent::MouseMove;
    Qt::MouseButtons held = pressed ? Qt::LeftButton : Qt::NoButton;
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)
        held = button;
    QMouseEvent event(type, receiver->mapFromGlobal(global), place, global, isMove ? Qt::NoButton : button, held,
                      Modifiers(draw.modifiers));
    if (type == QEvent::MouseButtonPress)
        pressed = receiver;
    else if (type == QEvent::MouseButtonRelease)
        pressed = nullptr;
    Send(receiver, event);
}

void RandomEvents::Wheel(const Draw& draw)
{
    QWidget* window = Window(draw);
    QWidget* receiver = window == host ? Part(draw) : window;
    const QPoint place(int(draw.x % quint32(receiver->width() + 1)), int(draw.y % quint32(receiver->height() + 1)));
    const int delta = int(draw.detail % 721) - 360;
    const QPoint angle = draw.detail / 721 % 3 ? QPoint(0, delta) : QPoint(delta, 0);
    QWheelEvent event(place, receiver->mapToGlobal(place), QPoint(), angle, Qt::NoButton, Modifiers(draw.modifiers),
                      Qt::NoScrollPhase, false);
    Send(receiver, event);
}

void RandomEvents::Enter(const Draw& draw)
{
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    Send(Part(draw), event);
}

void RandomEvents::Leave(const Draw& draw)
{
    QEvent event(QEvent::Leave);
    Send(Part(draw), event);
}

void RandomEvents::ContextMenu(const Draw& draw)
{
    QWidget* receiver = Part(draw);
    const QPoint place = receiver->rect().center();
    QContextMenuEvent event(draw.detail % 2 ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard, place,
                            receiver->mapToGlobal(place));
    Send(receiver, event);
}

void RandomEvents::Key(const Draw& draw)
{
    QWidget* window = Window(draw);
    QPointer<QWidget> receiver = window == host ? QApplication::focusWidget() : window->focusWidget();
    // A window that has just been closed may hold the focus still.
    if (!receiver || !receiver->isVisible())
        receiver = window == host ? Part(draw) : window;
    // As often a sign as one of the keys above.
    const bool isSign = draw.detail % 2;
    const int sign = 0x20 + int(draw.x % 0x5f);
    const int key = isSign ? QChar(sign).toUpper().unicode() : KEYS[draw.x % KEYS.size()];
    const QString text = isSign ? QString(QChar(sign)) : key == Qt::Key_Space ? QStringLiteral(" ") : QString();
    const Qt::KeyboardModifiers modifiers = Modifiers(draw.modifiers);
    const bool isRepeat = draw.detail / 2 % 8 == 0;
    if (!qt_sendShortcutOverrideEvent(receiver, 0, key, modifiers, text, isRepeat) && receiver) {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text, isRepeat);
        Send(receiver, press);
    }
    // Some keys are released elsewhere, and some that were never pressed here.
    if (receiver && draw.detail / 16 % 8 != 0) {
        QKeyEvent release(QEvent::KeyRelease, key, modifiers, text, isRepeat);
        Send(receiver, release);
    }
}

void RandomEvents::Focus(const Draw& draw)
{
    Part(draw)->setFocus(draw.detail % 2 ? Qt::TabFocusReason : Qt::MouseFocusReason);
}

void RandomEvents::Activate(const Draw& draw)
{
    QApplication::setActiveWindow(draw.detail % 3 ? host.data() : nullptr);
}

void RandomEvents::Resize(const Draw& draw)
{
    widget->resize(int(draw.x % quint32(LARGEST.width())), int(draw.y % quint32(LARGEST.height())));
}

void RandomEvents::Enable(const Draw& draw)
{
    widget->setEnabled(draw.detail % 8);
}

void RandomEvents::Show(const Draw& draw)
{
    QWidget* shown = draw.detail / 8 % 8 ? widget.data() : host.data();
    shown->setVisible(draw.detail % 8);
}

void RandomEvents::Direction(const Draw& draw)
{
    widget->setLayoutDirection(draw.detail % 2 ? Qt::LeftToRight : Qt::RightToLeft);
}

void RandomEvents::Font(const Draw& draw)
{
    QFont font = widget->font();
    font.setPointSize(6 + int(draw.detail % 30));
    widget->setFont(font);
}

void RandomEvents::Language(const Draw&)
{
    isTranslated = !isTranslated;
    if (isTranslated)
        QCoreApplication::installTranslator(&translator);
    else
        QCoreApplication::removeTranslator(&translator);
}

void RandomEvents::Style(const Draw& draw)
{
    Sheet(int(draw.detail % 3)).apply();
}

void RandomEvents::Paint(const Draw&)
{
    widget->grab();
}

void RandomEvents::PassLoop(const Draw&)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

// A dialog or menu may be run by the widget itself, which goes on only when it is closed.
void RandomEvents::ActIn(QWidget* window)
{
    const QPointer<QWidget> guard(window);
    if (auto* dialog = qobject_cast<QColorDialog*>(window))
        return nestedRandom() % 2 ? dialog->accept() : dialog->reject();
    for (int i = 0; i < EVENTS_IN_NESTED_LOOP && !qobject_cast<QFileDialog*>(guard) && guard->isVisible(); ++i) {
        Do(DrawFrom(nestedRandom));
        if (!guard)
            return;
    }
    Support::Dismiss(guard);
}
