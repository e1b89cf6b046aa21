#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace Zelkor::Catalogue {
struct Entry;
}

namespace Zelkor::Designer {

/// Describes one widget of the catalogue to Qt Designer. The entry must outlive it. GUI thread.
class FormWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit FormWidget(const Catalogue::Entry& entry) : entry(entry) {}

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;

    /// Called by form editors, but not when forms are loaded at run time.
    void initialize(QDesignerFormEditorInterface* editor) override;
    bool isInitialized() const override { return isInEditor; }

    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    const Catalogue::Entry& entry;
    bool isInEditor = false;
};

} // namespace Zelkor::Designer
