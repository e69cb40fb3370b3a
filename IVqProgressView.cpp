#include "IVqProgressView.h"

IVqProgressView::~IVqProgressView() = default;
