#pragma once

namespace vorlane {

// A control of an editor bound to a field of the edited record. The binding shows the field
// when the editor loads and writes every change of the control straight into the record.
class FieldBinding
{
public:
    FieldBinding() = default;
    FieldBinding(const FieldBinding &) = delete;
    FieldBinding &operator=(const FieldBinding &) = delete;
    virtual ~FieldBinding() = default;

    // Shows the field in the control, as the editor's load does.
    virtual void fill() = 0;
};

} // namespace vorlane
