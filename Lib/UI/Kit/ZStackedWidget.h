#pragma once

#include <QStackedWidget>

/// A stack of pages that takes the size of the page it shows instead of the largest one.
///
/// Its preferred and its minimum size are the minimum size of the current page. With `autoFit` off it is a plain
/// stack. Pages belong to the stack as to any `QStackedWidget`.
class ZStackedWidget : public QStackedWidget
{
    Q_OBJECT
    Q_PROPERTY(bool autoFit READ isAutoFit WRITE setAutoFit)

public:
    explicit ZStackedWidget(QWidget* parent = nullptr);

    /// Whether the stack follows its current page; on by default. Switching it off keeps the size of the moment until
    /// the layout asks again.
    bool isAutoFit() const { return autoFit; }
    void setAutoFit(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Has the layout ask for the size of the current page; nothing when `autoFit` is off.
    void fitToContent();

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool autoFit = true;
};
