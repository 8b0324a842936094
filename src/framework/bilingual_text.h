// A text in both languages of the system, UTF-8.
#pragma once

#include "framework/language.h"
