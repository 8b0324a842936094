#include "sections/styles/style_form.h"

namespace orv3 {

// Each stands in its style's file.
extern const CStyleForm kHForm, kBoxForm, kFlangedCrossForm, kRectangleForm, kHexagonForm,
    kTriangleForm, kCircleForm, kTubeForm, kTForm, kGeneralHForm, kLForm, kZForm, kChannelForm,
    kCrossForm, kGeneralBoxForm;

const CStyleForm& StyleForm(CStyleNumber style) noexcept {
  static constexpr const CStyleForm* kForms[] = {
      &kHForm,        &kBoxForm,    &kFlangedCrossForm, &kRectangleForm, &kHexagonForm,
      &kTriangleForm, &kCircleForm, &kTubeForm,         &kTForm,         &kGeneralHForm,
      &kLForm,        &kZForm,      &kChannelForm,      &kCrossForm,     &kGeneralBoxForm};
  static_assert(std::size(kForms) == kSectionStyles);
  return *kForms[style];
}

}  // namespace orv3
