#pragma once

#include <QComboBox>
#include <QPointer>
#include <QVector>

namespace Zelkor::Vx::UI::Kit {

/// A choice of the application and its windows; opened, it has those that are there then. A widget that is no window
/// joins them when it is set. One that goes leaves the box without a choice.
class StyleSheetTargetComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit StyleSheetTargetComboBox(QWidget* parent = nullptr);
    ~StyleSheetTargetComboBox() override;

    /// Null is the application. Does not emit.
    void setTarget(QWidget* widget);

    /// How a person knows it: its class, and its object name or title.
    static QString nameOf(const QWidget* widget);

    void showPopup() override;

Q_SIGNALS:
    /// A person chose; null is the application. Comes out of the event loop.
    void chosen(QWidget* widget);

    /// The widget that was set or chosen does not exist any more.
    void targetDestroyed();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void refill();
    void watch(QWidget* widget);

    QVector<QPointer<QWidget>> widgets; ///< by index; the first is the application
    QPointer<QWidget> current;
    bool hasChoice = true;
    QMetaObject::Connection watching;
};

} // namespace Zelkor::Vx::UI::Kit
