// The public interface of Orv3Cal in one header.
#pragma once

#include "framework/array.h"
#include "framework/bitmap.h"
#include "framework/cstring.h"
#include "framework/exception.h"
#include "framework/kvb_math.h"
#include "framework/message.h"
#include "framework/number_text.h"
#include "framework/utf8.h"
#include "sections/section_property.h"
#include "sections/section_style.h"
#include "sections/steel_jm_data.h"
#include "tables/data_item.h"
#include "tables/data_table.h"
#include "tables/data_type.h"
#include "tables/sketch.h"
