// A text of the check cases and their reports in both languages, UTF-8.
#pragma once

#include "framework/language.h"
