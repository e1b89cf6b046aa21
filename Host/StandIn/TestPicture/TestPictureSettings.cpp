#include <StandIn/TestPicture/TestPictureSettings.h>

#include <QApplication>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPointer>
#include <QSlider>
#include <QThread>

#include <glog/logging.h>

#include <utility>

namespace Zelkor::StandIn {

namespace {

constexpr int MAX_SPEED = 400; // per cent
constexpr int SPEED_STEP = 25;
constexpr int SLIDER_WIDTH = 220;

QDialog* CreateDialog(const std::shared_ptr<TestPictureSettings>& settings)
{
    auto* dialog = new QDialog(QApplication::activeWindow());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(QStringLiteral("TestPictureSettings"));
    dialog->setWindowTitle(QCoreApplication::translate("TestPicture", "Test picture"));

    auto* speed = new QSlider(Qt::Horizontal);
    speed->setObjectName(QStringLiteral("Speed"));
    speed->setRange(0, MAX_SPEED);
    speed->setSingleStep(SPEED_STEP);
    speed->setPageStep(2 * SPEED_STEP);
    speed->setMinimumWidth(SLIDER_WIDTH);
    speed->setValue(settings->speedPercent);
    QObject::connect(speed, &QSlider::valueChanged, dialog, [settings](int value) { settings->speedPercent = value; });

    auto* counter = new QCheckBox(QCoreApplication::translate("TestPicture", "Show &counter"));
    counter->setObjectName(QStringLiteral("ShowCounter"));
    counter->setChecked(settings->showsCounter);
    QObject::connect(counter, &QCheckBox::toggled, dialog, [settings](bool on) { settings->showsCounter = on; });

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);

    auto* layout = new QFormLayout(dialog);
    layout->addRow(QCoreApplication::translate("TestPicture", "&Speed"), speed);
    layout->addRow(counter);
    layout->addRow(buttons);
    return dialog;
}

class Dialog : public RefCounted<Acquis::IDeviceSettings>
{
public:
    explicit Dialog(std::shared_ptr<TestPictureSettings> settings) : settings(std::move(settings)) {}

    void ShowSettingsDialog() override
    {
        if (!qApp || QThread::currentThread() != qApp->thread()) {
            LOG(ERROR) << "The settings of the test picture are for the GUI thread";
            return;
        }
        if (open) {
            open->showNormal();
            open->raise();
            open->activateWindow();
        } else {
            open = CreateDialog(settings);
            open->show();
        }
    }

private:
    const std::shared_ptr<TestPictureSettings> settings;
    QPointer<QDialog> open;
};

} // namespace

boost::intrusive_ptr<Acquis::IDeviceSettings>
CreateTestPictureDialog(const std::shared_ptr<TestPictureSettings>& settings)
{
    return new Dialog(settings);
}

} // namespace Zelkor::StandIn
