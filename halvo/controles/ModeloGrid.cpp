#include "halvo/controles/ModeloGrid.h"

#include "platform/runtime/ErroVB.h"
#include "platform/texto/Texto.h"

#include <algorithm>
#include <array>

namespace halvo {

namespace {

// The old grid's alignment codes: 0-2 left, 3-5 centre, 6-8 right, each at the top, the middle
// or the bottom; anything else is "general".
Qt::Alignment pAlinhamento(int codigo, const QString& texto) {
    if (codigo < 0 || codigo > 8) {
        return (texto::IsNumeric(texto) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    }
    static constexpr std::array<Qt::AlignmentFlag, 3> horizontais{Qt::AlignLeft, Qt::AlignHCenter,
                                                                  Qt::AlignRight};
    static constexpr std::array<Qt::AlignmentFlag, 3> verticais{Qt::AlignTop, Qt::AlignVCenter,
                                                                Qt::AlignBottom};
    return horizontais[codigo / 3] | verticais[codigo % 3];
}

}  // namespace

ModeloGrid::ModeloGrid(QObject* pai) : QAbstractTableModel(pai) {}

void ModeloGrid::setDimensoes(int linhas, int colunas) {
    linhas = std::max(linhas, 0);
    colunas = std::max(colunas, 0);
    if (colunas != mColunas || linhas < mLinhasFixas) {
        beginResetModel();
        mColunas = colunas;
        mAtributos.resize(colunas);
        mCelulas.resize(linhas);
        for (auto& linha : mCelulas) {
            linha.resize(colunas);
        }
        mLinhasFixas = std::min(mLinhasFixas, linhas);
        mColunasFixas = std::min(mColunasFixas, colunas);
        endResetModel();
        emit CantoAlterado();
        return;
    }
    // Rows come and go without a reset, so that the view keeps its place.
    const int atuais = Linhas();
    if (linhas > atuais) {
        beginInsertRows({}, atuais - mLinhasFixas, linhas - mLinhasFixas - 1);
        mCelulas.resize(linhas, std::vector<QString>(mColunas));
        endInsertRows();
    } else if (linhas < atuais) {
        beginRemoveRows({}, linhas - mLinhasFixas, atuais - mLinhasFixas - 1);
        mCelulas.resize(linhas);
        endRemoveRows();
    }
}

void ModeloGrid::setFixas(int linhas, int colunas) {
    beginResetModel();
    mLinhasFixas = std::clamp(linhas, 0, std::min(1, Linhas()));
    mColunasFixas = std::clamp(colunas, 0, std::min(1, mColunas));
    endResetModel();
    emit CantoAlterado();
}

const QString& ModeloGrid::Texto(int linha, int coluna) const {
    Confere(linha, coluna);
    return mCelulas[linha][coluna];
}

void ModeloGrid::setTexto(int linha, int coluna, const QString& texto) {
    Confere(linha, coluna);
    mCelulas[linha][coluna] = texto;
    pAvisaMudanca(linha, coluna);
}

void ModeloGrid::Limpa(bool incluiFixas) {
    for (int linha = 0; linha < Linhas(); ++linha) {
        for (int coluna = 0; coluna < mColunas; ++coluna) {
            if (incluiFixas || (linha >= mLinhasFixas && coluna >= mColunasFixas)) {
                mCelulas[linha][coluna].clear();
            }
        }
    }
    if (rowCount() > 0 && columnCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
    if (incluiFixas) {
        if (columnCount() > 0) {
            emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
        }
        if (rowCount() > 0) {
            emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
        }
        emit CantoAlterado();
    }
}

void ModeloGrid::InsereLinha(int posicao) {
    if (posicao < mLinhasFixas || posicao > Linhas()) {
        throw plataforma::ErroVB::padrao(plataforma::ErroSubscrito);
    }
    beginInsertRows({}, posicao - mLinhasFixas, posicao - mLinhasFixas);
    mCelulas.insert(mCelulas.begin() + posicao, std::vector<QString>(mColunas));
    endInsertRows();
}

void ModeloGrid::RemoveLinha(int posicao) {
    if (posicao < mLinhasFixas || posicao >= Linhas()) {
        throw plataforma::ErroVB::padrao(plataforma::ErroSubscrito);
    }
    beginRemoveRows({}, posicao - mLinhasFixas, posicao - mLinhasFixas);
    mCelulas.erase(mCelulas.begin() + posicao);
    endRemoveRows();
}

int ModeloGrid::Alinhamento(int coluna) const {
    ConfereColuna(coluna);
    return mAtributos[coluna].alinhamento;
}

void ModeloGrid::setAlinhamento(int coluna, int codigo) {
    ConfereColuna(coluna);
    mAtributos[coluna].alinhamento = codigo;
    if (coluna >= mColunasFixas && rowCount() > 0) {
        const int naVista = coluna - mColunasFixas;
        emit dataChanged(index(0, naVista), index(rowCount() - 1, naVista), {Qt::TextAlignmentRole});
    }
}

int ModeloGrid::Comprimento(int coluna) const {
    ConfereColuna(coluna);
    return mAtributos[coluna].comprimento;
}

void ModeloGrid::setComprimento(int coluna, int comprimento) {
    ConfereColuna(coluna);
    mAtributos[coluna].comprimento = std::max(comprimento, 0);
}

QModelIndex ModeloGrid::IndiceDaVista(int linha, int coluna) const {
    return index(linha - mLinhasFixas, coluna - mColunasFixas);
}

int ModeloGrid::rowCount(const QModelIndex& pai) const {
    return pai.isValid() ? 0 : Linhas() - mLinhasFixas;
}

int ModeloGrid::columnCount(const QModelIndex& pai) const {
    return pai.isValid() ? 0 : mColunas - mColunasFixas;
}

QVariant ModeloGrid::data(const QModelIndex& indice, int papel) const {
    if (!indice.isValid()) {
        return {};
    }
    const int coluna = ColunaDoGrid(indice.column());
    const QString& texto = mCelulas[LinhaDoGrid(indice.row())][coluna];
    switch (papel) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return texto;
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(pAlinhamento(mAtributos[coluna].alinhamento, texto));
        default:
            return {};
    }
}

QVariant ModeloGrid::headerData(int secao, Qt::Orientation orientacao, int papel) const {
    if (papel != Qt::DisplayRole) {
        return {};
    }
    if (orientacao == Qt::Horizontal) {
        return mLinhasFixas > 0 && secao < columnCount() ? QVariant(mCelulas[0][ColunaDoGrid(secao)])
                                                         : QVariant();
    }
    return mColunasFixas > 0 && secao < rowCount() ? QVariant(mCelulas[LinhaDoGrid(secao)][0]) : QVariant();
}

Qt::ItemFlags ModeloGrid::flags(const QModelIndex& indice) const {
    const Qt::ItemFlags base = QAbstractTableModel::flags(indice);
    return mEditavel ? base | Qt::ItemIsEditable : base;
}

bool ModeloGrid::setData(const QModelIndex& indice, const QVariant& valor, int papel) {
    if (!indice.isValid() || papel != Qt::EditRole) {
        return false;
    }
    const int linha = LinhaDoGrid(indice.row());
    const int coluna = ColunaDoGrid(indice.column());
    QString& celula = mCelulas[linha][coluna];
    const QString novo = valor.toString();
    const bool alterou = novo != celula;
    if (alterou) {
        celula = novo;
        emit dataChanged(indice, indice);
    }
    emit Editado(linha, coluna, alterou);
    return true;
}

void ModeloGrid::ConfereColuna(int coluna) const {
    if (coluna < 0 || coluna >= mColunas) {
        throw plataforma::ErroVB::padrao(plataforma::ErroSubscrito);
    }
}

void ModeloGrid::Confere(int linha, int coluna) const {
    ConfereColuna(coluna);
    if (linha < 0 || linha >= Linhas()) {
        throw plataforma::ErroVB::padrao(plataforma::ErroSubscrito);
    }
}

void ModeloGrid::pAvisaMudanca(int linha, int coluna) {
    const bool linhaFixa = linha < mLinhasFixas;
    const bool colunaFixa = coluna < mColunasFixas;
    if (linhaFixa && colunaFixa) {
        emit CantoAlterado();
    } else if (linhaFixa) {
        emit headerDataChanged(Qt::Horizontal, coluna - mColunasFixas, coluna - mColunasFixas);
    } else if (colunaFixa) {
        emit headerDataChanged(Qt::Vertical, linha - mLinhasFixas, linha - mLinhasFixas);
    } else {
        const QModelIndex indice = IndiceDaVista(linha, coluna);
        emit dataChanged(indice, indice);
    }
}

}  // namespace halvo
