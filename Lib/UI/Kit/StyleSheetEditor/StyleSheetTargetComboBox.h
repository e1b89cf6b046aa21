#pragma once

#include <QComboBox>
#include <QPointer>
#include <QVector>

namespace Zelkor::Vx::UI::Kit {

/// Lists the application, its current windows and the current target. Has no current item after the target was
/// destroyed.
class StyleSheetTargetComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit StyleSheetTargetComboBox(QWidget* parent = nullptr);
    ~StyleSheetTargetComboBox() override;

    /// Null selects the application. Does not emit `chosen`.
    void setTarget(QWidget* widget);

    /// Returns the class of a widget with its object name or title.
    static QString nameOf(const QWidget* widget);

    void showPopup() override;

Q_SIGNALS:
    /// Emitted from the event loop when the user chooses a target; null is the application.
    void chosen(QWidget* widget);

    /// Emitted when the current target was destroyed.
    void targetDestroyed();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void refill();
    void watch(QWidget* widget);

    QVector<QPointer<QWidget>> widgets; ///< by index; the first, null, is the application
    QPointer<QWidget> current;
    bool hasChoice = true;
    QMetaObject::Connection watching;
};

} // namespace Zelkor::Vx::UI::Kit
