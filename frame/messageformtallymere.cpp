#include "frame/messageformtallymere.h"

#include "controls/windows/screenmetrics.h"
#include "ui_messageformtallymere.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace Tallymere {

TFormMessageInventorySystem *MessageFormTallymere = nullptr;

TFormMessageInventorySystem::TFormMessageInventorySystem(QWidget *parent)
    : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_ui(std::make_unique<Ui::TFormMessageInventorySystem>())
{
    m_ui->setupUi(this);
    resize(scaled(this, width()), scaled(this, height()));
    setWindowModality(Qt::ApplicationModal);
    MessageFormTallymere = this;
}

TFormMessageInventorySystem::~TFormMessageInventorySystem()
{
    if (MessageFormTallymere == this)
        MessageFormTallymere = nullptr;
}

void TFormMessageInventorySystem::start(int steps)
{
    m_ui->RzProgressBarSaveStatus->setRange(0, steps);
    m_ui->RzProgressBarSaveStatus->setValue(0);
    showCount();
    show();
}

void TFormMessageInventorySystem::step()
{
    m_ui->RzProgressBarSaveStatus->setValue(m_ui->RzProgressBarSaveStatus->value() + 1);
    showCount();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void TFormMessageInventorySystem::finish() { hide(); }

void TFormMessageInventorySystem::showCount()
{
    m_ui->LabelRecordCount->setText(
        tr("%1 of %2").arg(m_ui->RzProgressBarSaveStatus->value()).arg(m_ui->RzProgressBarSaveStatus->maximum()));
}

} // namespace Tallymere
