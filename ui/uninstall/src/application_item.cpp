#include "ui/uninstall/src/application_item.h"

namespace uninstall {

ApplicationItem::ApplicationItem(const QString& name, const RunState& run)
    : QListWidgetItem(name), run(run)
{
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
    QListWidgetItem::setData(Qt::CheckStateRole, Qt::Unchecked);
}

void ApplicationItem::setData(int role, const QVariant& value)
{
    if (role == Qt::CheckStateRole && !run.choiceIsOpen())
        return;
    QListWidgetItem::setData(role, value);
}

} // namespace uninstall
