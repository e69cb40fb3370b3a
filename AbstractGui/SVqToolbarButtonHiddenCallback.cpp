#include "AbstractGui/SVqToolbarButtonHiddenCallback.h"

SVqToolbarButtonHiddenCallback::~SVqToolbarButtonHiddenCallback() = default;
