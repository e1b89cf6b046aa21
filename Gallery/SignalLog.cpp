#include "SignalLog.h"
#include "Texts.h"

#include <QAction>
#include <QColor>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStringList>
#include <QThread>
#include <QTime>
#include <QToolButton>

namespace Zelkor::Gallery {

namespace {

constexpr int LARGEST_LINE_COUNT = 500;
constexpr int LONGEST_TEXT = 200; ///< characters of an argument
constexpr int SMALLEST_HEIGHT = 56;
constexpr int PREFERRED_HEIGHT = 104;
constexpr int HORIZONTAL_MARGIN = 24;
constexpr int SPACING = 4;
constexpr int BOTTOM_MARGIN = 16;

// The class among those of `object` that has this name, null when there is none.
const QMetaObject* FindClass(const QObject& object, const QString& className)
{
    const QMetaObject* meta = object.metaObject();
    while (meta && QString(meta->className()).section("::", -1) != className)
        meta = meta->superClass();
    return meta;
}

QObject* FindObject(QWidget* widget, const QString& className)
{
    if (FindClass(*widget, className))
        return widget;
    for (QObject* part : widget->findChildren<QObject*>()) {
        if (FindClass(*part, className))
            return part;
    }
    return widget;
}

bool IsGeneral(const QMetaObject& meta)
{
    return &meta == &QWidget::staticMetaObject || &meta == &QObject::staticMetaObject;
}

QString CallText(const QMetaMethod& signal, void** arguments)
{
    QStringList texts;
    for (int i = 0; i < signal.parameterCount(); ++i) {
        const int type = signal.parameterType(i);
        texts.append(type == QMetaType::UnknownType ? QString(signal.parameterTypes()[i])
                                                    : ArgumentText(type, arguments[i + 1]));
    }
    return QString("%1(%2)").arg(QString(signal.name()), texts.join(", "));
}

} // namespace

QString ArgumentText(int metaType, const void* argument)
{
    if (QMetaType::typeFlags(metaType) & QMetaType::PointerToQObject) {
        const auto* object = *static_cast<QObject* const*>(argument);
        if (!object)
            return "null";
        return QString("%1 \"%2\"").arg(object->metaObject()->className(), object->objectName());
    }
    const QVariant value(metaType, argument);
    if (metaType == QMetaType::QColor)
        return value.value<QColor>().name(QColor::HexArgb);
    QString text = value.toString();
    if (text.size() > LONGEST_TEXT)
        text = text.left(LONGEST_TEXT) + QChar(0x2026);
    if (metaType == QMetaType::QString)
        return '"' + text + '"';
    return value.canConvert<QString>() ? text : QString(value.typeName());
}

SignalTap::SignalTap(Listener listener, QObject* parent) : QObject(parent), listener(std::move(listener))
{
    // Where a class is but declared beside a signal, Qt does not know by itself how to read a pointer to it.
    qRegisterMetaType<QAction*>();
}

int SignalTap::Watch(QObject* object, const QString& className, const QString& title)
{
    const QMetaObject* declaring = FindClass(*object, className);
    if (!declaring)
        declaring = object->metaObject();
    int count = 0;
    for (const QMetaObject* meta = declaring; meta && !IsGeneral(*meta); meta = meta->superClass()) {
        count += ConnectSignals(object, *meta, title);
        if (meta == declaring && count > 0)
            break;
    }
    return count;
}

int SignalTap::ConnectSignals(QObject* object, const QMetaObject& declaring, const QString& title)
{
    int count = 0;
    for (int i = declaring.methodOffset(); i < declaring.methodCount(); ++i) {
        const QMetaMethod signal = declaring.method(i);
        // A clone is the same signal with a default argument left out.
        if (signal.methodType() != QMetaMethod::Signal || (signal.attributes() & QMetaMethod::Cloned))
            continue;
        // Numbers past the methods of QObject come to qt_metacall, where they are those of the connections.
        QMetaObject::connect(object, i, this, QObject::staticMetaObject.methodCount() + connections.size(),
                             Qt::DirectConnection);
        connections.append({signal, title});
        ++count;
    }
    return count;
}

int SignalTap::qt_metacall(QMetaObject::Call call, int id, void** arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod)
        return id;
    if (id < connections.size() && QThread::currentThread() == thread())
        listener(connections[id].title, CallText(connections[id].signal, arguments));
    return id - connections.size();
}

SignalLog::SignalLog(QWidget* parent)
    : QWidget(parent), tap([this](const QString& title, const QString& call) {
          lines->appendPlainText(
              QString("%1   %2   %3").arg(QTime::currentTime().toString("HH:mm:ss.zzz"), title, call));
      }),
      lines(new QPlainTextEdit)
{
    auto* heading = new QLabel(tr("Signals"));
    heading->setObjectName("caption");
    AlignAtStart(heading);
    auto* clearButton = new QToolButton;
    clearButton->setText(tr("Clear"));
    clearButton->setToolTip(tr("Empties the list of signals"));
    clearButton->setFocusPolicy(Qt::StrongFocus);
    clearButton->setAutoRaise(true);
    lines->setObjectName("signalLines");
    lines->setAccessibleName(tr("Signals"));
    lines->setPlaceholderText(tr("The signals of the widgets are listed here"));
    lines->setReadOnly(true);
    lines->setUndoRedoEnabled(false);
    lines->setTabChangesFocus(true);
    lines->setMaximumBlockCount(LARGEST_LINE_COUNT);
    lines->setMinimumHeight(SMALLEST_HEIGHT);
    connect(clearButton, &QToolButton::clicked, lines, &QPlainTextEdit::clear);

    auto* top = new QHBoxLayout;
    top->addWidget(heading, 1);
    top->addWidget(clearButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(HORIZONTAL_MARGIN, SPACING, HORIZONTAL_MARGIN, BOTTOM_MARGIN);
    layout->setSpacing(SPACING);
    layout->addLayout(top);
    layout->addWidget(lines);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    hide();
}

void SignalLog::Watch(QWidget* widget, const QString& className, const QString& title)
{
    if (tap.Watch(FindObject(widget, className), className, title) > 0)
        show();
}

QSize SignalLog::sizeHint() const
{
    return QSize(QWidget::sizeHint().width(), minimumSizeHint().height() - SMALLEST_HEIGHT + PREFERRED_HEIGHT);
}

} // namespace Zelkor::Gallery
