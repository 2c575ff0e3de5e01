#pragma once

#include <QStyledItemDelegate>

namespace halvo {

// The cell editor of a Grid: plain text, or in a numeric column digits, the user's decimal
// separator (once) and a leading minus, up to the column's length.
class DelegadoGrid : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* pai, const QStyleOptionViewItem& opcao,
                          const QModelIndex& indice) const override;
};

}  // namespace halvo
