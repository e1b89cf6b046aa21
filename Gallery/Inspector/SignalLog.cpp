#include "SignalLog.h"
#include "MetaTypes.h"

#include <QAction>
#include <QColor>
#include <QPlainTextEdit>
#include <QStringList>
#include <QThread>
#include <QTime>
#include <QToolButton>
#include <QVBoxLayout>

namespace Zelkor::Gallery {

namespace {

constexpr int LARGEST_LINE_COUNT = 500;
constexpr int LONGEST_TEXT = 200; ///< maximum characters of an argument
constexpr int MARGIN = 12;
constexpr int SPACING = 8;

// Returns the class of `object` or its base class with this name, or null.
const QMetaObject* FindClass(const QObject& object, const QString& className)
{
    const QMetaObject* meta = object.metaObject();
    while (meta && QString(meta->className()).section("::", -1) != className)
        meta = meta->superClass();
    return meta;
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

QString ArgumentText(int metaType, const void* argument)
{
    const QVariant value = ValueOf(metaType, argument);
    if (value.canConvert<QObject*>()) {
        const auto* object = value.value<QObject*>();
        if (!object)
            return "null";
        return QString("%1 \"%2\"").arg(object->metaObject()->className(), object->objectName());
    }
    if (metaType == QMetaType::QColor)
        return value.value<QColor>().name(QColor::HexArgb);
    QString text = value.toString();
    if (text.size() > LONGEST_TEXT)
        text = text.left(LONGEST_TEXT) + QChar(0x2026);
    if (metaType == QMetaType::QString)
        return '"' + text + '"';
    return value.canConvert<QString>() ? text : QString(value.typeName());
}

SignalListener::SignalListener(Listener listener, QObject* parent) : QObject(parent), listener(std::move(listener))
{
    // Qt cannot read pointers to classes that are only forward-declared where the signal is declared.
    qRegisterMetaType<QAction*>();
}

int SignalListener::Watch(QObject* object, const QString& className, const QString& title)
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

int SignalListener::ConnectSignals(QObject* object, const QMetaObject& declaring, const QString& title)
{
    int count = 0;
    for (int i = declaring.methodOffset(); i < declaring.methodCount(); ++i) {
        const QMetaMethod signal = declaring.method(i);
        // Cloned methods are signals without a default argument.
        if (signal.methodType() != QMetaMethod::Signal || (signal.attributes() & QMetaMethod::Cloned))
            continue;
        // Qt passes method indices beyond those of QObject to qt_metacall(), which treats them as connection indices.
        QMetaObject::connect(object, i, this, QObject::staticMetaObject.methodCount() + connections.size(),
                             Qt::DirectConnection);
        connections.append({signal, title});
        ++count;
    }
    return count;
}

int SignalListener::qt_metacall(QMetaObject::Call call, int id, void** arguments)
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
    auto* clearButton = new QToolButton;
    clearButton->setText(tr("Clear"));
    clearButton->setToolTip(tr("Empties the list of signals"));
    clearButton->setFocusPolicy(Qt::StrongFocus);
    clearButton->setAutoRaise(true);
    lines->setObjectName("signalLines");
    lines->setAccessibleName(tr("Signals"));
    lines->setPlaceholderText(tr("The widgets of this page have no signals of their own"));
    lines->setReadOnly(true);
    lines->setUndoRedoEnabled(false);
    lines->setTabChangesFocus(true);
    lines->setMaximumBlockCount(LARGEST_LINE_COUNT);
    connect(clearButton, &QToolButton::clicked, lines, &QPlainTextEdit::clear);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->setSpacing(SPACING);
    layout->addWidget(lines);
    layout->addWidget(clearButton, 0, Qt::AlignTrailing);
}

void SignalLog::Watch(QWidget* widget, const QString& className, const QString& title)
{
    watchedSignals += tap.Watch(FindObject(widget, className), className, title);
    if (watchedSignals > 0)
        lines->setPlaceholderText(tr("The signals of the widgets are listed here"));
}

} // namespace Zelkor::Gallery
