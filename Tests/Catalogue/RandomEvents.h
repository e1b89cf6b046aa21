#pragma once

#include <Examples/Support/BuiltInStyleSheets.h>

#include <Support/ModalWatcher.h>

#include <QEvent>
#include <QPointer>
#include <QTranslator>
#include <QWidget>

#include <random>
#include <vector>

/// A language in which every text is another one, longer than the source text.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int number) const override;
};

/// Does to a widget, and to the windows that it opens, what people, window systems and applications do, in any order.
///
/// Events go straight to the widgets, and nothing is painted but now and then: so a million is a matter of minutes.
/// The sequence is that of the seed alone. Only what depends on time inside of the widgets is the clock's.
class RandomEvents
{
public:
    /// `host` is a window, which holds `widget` and nothing else.
    RandomEvents(QWidget* host, QWidget* widget, quint64 seed);
    ~RandomEvents();

    void Next();

private:
    /// The numbers of one event. Each event draws all of them, so that what a widget does with one event does not
    /// decide about those that follow.
    struct Draw
    {
        quint32 kind, place, x, y, detail, modifiers;
    };
    struct Kind
    {
        int weight;
        void (RandomEvents::*send)(const Draw&);
    };
    static const std::vector<Kind> KINDS;

    static Draw DrawFrom(std::mt19937& generator);
    void Do(const Draw& draw);
    QWidget* Window(const Draw& draw) const;
    QWidget* Part(const Draw& draw) const;
    void SendMouse(QEvent::Type type, const Draw& draw);
    void ActIn(QWidget* window);

    void Move(const Draw& draw) { SendMouse(QEvent::MouseMove, draw); }
    void Press(const Draw& draw) { SendMouse(QEvent::MouseButtonPress, draw); }
    void Release(const Draw& draw) { SendMouse(QEvent::MouseButtonRelease, draw); }
    void DoubleClick(const Draw& draw) { SendMouse(QEvent::MouseButtonDblClick, draw); }
    void Wheel(const Draw& draw);
    void Enter(const Draw& draw);
    void Leave(const Draw& draw);
    void ContextMenu(const Draw& draw);
    void Key(const Draw& draw);
    void Focus(const Draw& draw);
    void Activate(const Draw& draw);
    void Resize(const Draw& draw);
    void Enable(const Draw& draw);
    void Show(const Draw& draw);
    void Direction(const Draw& draw);
    void Font(const Draw& draw);
    void Language(const Draw& draw);
    void Style(const Draw& draw);
    void Paint(const Draw& draw);
    void PassLoop(const Draw& draw);

    QPointer<QWidget> host;
    QPointer<QWidget> widget;
    QPointer<QWidget> pressed; ///< gets the mouse until its release, as the window system has it
    std::mt19937 random;
    std::mt19937 nestedRandom; ///< of the events in dialogs and menus, which may open when the clock says
    MarkingTranslator translator;
    bool isTranslated = false;
    Support::ModalWatcher loops;
};
