#include "toolkit/data/clear_data_set.h"

void ClearDataSet(data::DataSet& set) {
    const data::ViewsOff off(set);
    if (set.isOpen()) {
        set.last();
        while (set.recordCount() > 0)
            set.remove();
    }
    set.reopen();
}
