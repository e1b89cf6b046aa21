#pragma once

#include <QStackedWidget>

/// A stacked widget with the size of its current page instead of the largest one.
///
/// Size hint and minimum size hint are the minimum size hint of the current page. Without `autoFit`, it behaves like
/// QStackedWidget.
class ZStackedWidget : public QStackedWidget
{
    Q_OBJECT
    Q_PROPERTY(bool autoFit READ isAutoFit WRITE setAutoFit)

public:
    explicit ZStackedWidget(QWidget* parent = nullptr);

    /// Whether the size hints are those of the current page; true by default. After a change to false, the size is kept
    /// until the next layout.
    bool isAutoFit() const { return autoFit; }
    void setAutoFit(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Makes the layout query the size of the current page, with `autoFit` only.
    void fitToContent();

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool autoFit = true;
};
