#pragma once

#include "toolkit/data/data_set.h"

/// Deletes the records that show up from the last back, with their events, then opens the set again.
void ClearDataSet(data::DataSet& set);
