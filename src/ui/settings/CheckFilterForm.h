#pragma once

#include "BoundForm.h"
#include "model/modGlobal.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vorlane {

// What the type and file filter windows share: a control array of check boxes, box i
// (objectName `<arrayName>_<i>`) standing for check value i; closing recounts the checked
// values into their count.
class CheckFilterForm : public BoundForm
{
    Q_OBJECT
public:
    CheckFilterForm(Document &doc, std::span<int16_t> values, int16_t &count, QWidget *parent);

    // Recounts the checked values.
    void Form_Unload() override;

    // Box `index` of the array.
    QCheckBox *filterBox(int index) const;

protected:
    // Binds every box of the array; called once the form's controls exist.
    void bindFilterBoxes(const char *arrayName);

private:
    std::span<int16_t> m_values;
    int16_t &m_count;
    std::vector<QCheckBox *> m_boxes;
};

} // namespace vorlane
