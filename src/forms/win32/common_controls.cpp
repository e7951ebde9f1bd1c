#include "forms/win32/common_controls.h"

namespace forms::win32 {
namespace {

constexpr DWORD kControlClasses =
    ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_LISTVIEW_CLASSES;
constexpr UINT kPictures = ILC_COLOR32 | ILC_MASK;
constexpr int kGrowBy = 8;

}  // namespace

void CommonControls::Require() {
  if (required_) return;
  const auto initialise = library_.Find<decltype(&InitCommonControlsEx)>("InitCommonControlsEx");
  const INITCOMMONCONTROLSEX classes = {sizeof(classes), kControlClasses};
  required_ = initialise && initialise(&classes);
}

HIMAGELIST CommonControls::CreateImageList(int size) {
  const auto create = library_.Find<decltype(&ImageList_Create)>("ImageList_Create");
  return create ? create(size, size, kPictures, 0, kGrowBy) : nullptr;
}

int CommonControls::AddPicture(HIMAGELIST images, HICON picture) {
  const auto replace = library_.Find<decltype(&ImageList_ReplaceIcon)>("ImageList_ReplaceIcon");
  return replace ? replace(images, -1, picture) : -1;
}

void CommonControls::DestroyImageList(HIMAGELIST images) {
  const auto destroy = library_.Find<decltype(&ImageList_Destroy)>("ImageList_Destroy");
  if (destroy) destroy(images);
}

}  // namespace forms::win32
