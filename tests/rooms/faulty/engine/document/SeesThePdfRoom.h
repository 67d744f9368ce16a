#pragma once

// A fixture: the document model must not see the PDF room.
#include "pdf/PageContent.h"
