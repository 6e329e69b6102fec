#pragma once

#include "ui/uninstall/src/run_state.h"

#include <QListWidgetItem>

namespace uninstall {

// One row of the application list. Its check box refuses every change while the choice is not open,
// whether it comes from mouse, key, assistive technology or code. `run` must outlive every change;
// the destructor does not use it.
class ApplicationItem : public QListWidgetItem
{
public:
    ApplicationItem(const QString& name, const RunState& run);

    void setData(int role, const QVariant& value) override;

private:
    const RunState& run;
};

} // namespace uninstall
