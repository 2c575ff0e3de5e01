#pragma once

#include <QString>
#include <QWidget>

class QTableView;

namespace halvo {

class ModeloGrid;

// The editing grid. Rows and columns count from 0 and include the fixed ones: with one fixed row
// and one fixed column (the default), row 0 holds the column titles, column 0 the row titles and
// (0, 0) the corner, and the cells the user works on start at (1, 1). The fixed row and column
// are the table's headers, so they stay in view when it scrolls.
//
// - Linhas/Colunas resize the grid and keep what it holds; LinhasFixas/ColunasFixas are 0 or 1.
// - LarguraColuna is in twips, 15 to a pixel at 96 dpi; the width of column 0 when it is fixed is
//   the width of the row titles.
// - AlinhamentoColuna takes the old codes: 0-2 left, 3-5 centre, 6-8 right, each at the top, the
//   middle or the bottom (3 is centre-top); the default, 9, puts numbers to the right and text to
//   the left.
// - TextoMatriz reads and writes any cell, fixed ones included. A position outside the grid
//   raises error 9 (as do InsereLinha, RemoveLinha and the column properties); InsereLinha and
//   RemoveLinha work on rows that are not fixed, and InsereLinha(Linhas()) appends.
// - Linha/Coluna are the current cell (the user's cursor); setting them moves it and scrolls to it.
// - Limpa(true) empties every cell; Limpa(false) keeps the titles in the fixed cells.
// - setRedesenho(false) stops painting while a screen fills the grid; setRedesenho(true) paints it
//   once.
// - ColunaNumerica(coluna, comprimento): typing in that column takes digits, the user's decimal
//   separator and a leading minus, at most comprimento characters; 0 takes any text again.
// - With Editavel (the default) the user edits a cell by typing on it (the key starts the edit),
//   by a double click or F2, commits with Enter, Tab or by leaving the cell, and drops the edit
//   with Escape. Each commit emits FimDeEdicao(linha, coluna), and CelulaAlterada(linha, coluna)
//   when the text changed. Nothing written from code emits either.
//
// The table inside is the focus proxy: keys for the grid go to focusProxy().
class Grid : public QWidget {
    Q_OBJECT

public:
    explicit Grid(QWidget* pai = nullptr);

    int Linhas() const;
    void setLinhas(int linhas);
    int Colunas() const;
    void setColunas(int colunas);
    int LinhasFixas() const;
    void setLinhasFixas(int linhas);
    int ColunasFixas() const;
    void setColunasFixas(int colunas);

    int LarguraColuna(int coluna) const;
    void setLarguraColuna(int coluna, int twips);
    int AlinhamentoColuna(int coluna) const;
    void setAlinhamentoColuna(int coluna, int codigo);

    QString TextoMatriz(int linha, int coluna) const;
    void setTextoMatriz(int linha, int coluna, const QString& texto);

    int Linha() const;
    void setLinha(int linha);
    int Coluna() const;
    void setColuna(int coluna);
    QString TextoAtual() const;
    void setTextoAtual(const QString& texto);

    void Limpa(bool incluiFixas);
    void InsereLinha(int posicao);
    void RemoveLinha(int posicao);

    bool Redesenho() const;
    void setRedesenho(bool redesenho);

    void ColunaNumerica(int coluna, int comprimento);
    bool Editavel() const;
    void setEditavel(bool editavel);

signals:
    void FimDeEdicao(int linha, int coluna);
    void CelulaAlterada(int linha, int coluna);

private:
    void pMostraCabecalhos();
    void pVaiPara(int linha, int coluna);

    ModeloGrid* mModelo;
    QTableView* mTabela;
};

}  // namespace halvo
