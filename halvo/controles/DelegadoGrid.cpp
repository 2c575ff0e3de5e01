#include "halvo/controles/DelegadoGrid.h"

#include "halvo/controles/ModeloGrid.h"

#include <QLineEdit>
#include <QLocale>
#include <QRegularExpressionValidator>

namespace halvo {

QWidget* DelegadoGrid::createEditor(QWidget* pai, const QStyleOptionViewItem& opcao,
                                    const QModelIndex& indice) const {
    QWidget* editor = QStyledItemDelegate::createEditor(pai, opcao, indice);
    const auto* modelo = qobject_cast<const ModeloGrid*>(indice.model());
    auto* linha = qobject_cast<QLineEdit*>(editor);
    if (modelo == nullptr || linha == nullptr) {
        return editor;
    }
    const int comprimento = modelo->Comprimento(modelo->ColunaDoGrid(indice.column()));
    if (comprimento > 0) {
        const QString separador = QRegularExpression::escape(QLocale().decimalPoint());
        const QRegularExpression numero(QStringLiteral("-?\\d*(%1\\d*)?").arg(separador));
        linha->setValidator(new QRegularExpressionValidator(numero, linha));
        linha->setMaxLength(comprimento);
    }
    return editor;
}

}  // namespace halvo
