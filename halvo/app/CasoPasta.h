#pragma once

#include "halvo/sdk/Caso.h"

#include <QDateTime>
#include <QString>

namespace halvo {

// A case given by its folder, as the command line names it: the folder answers "Diretorio" (with
// its separator), its name is the case's name, its parent folder's name the study, and the clock
// gives the dates. Item names are answered in either case ("Nome" and "nome").
class CasoPasta : public caso {
public:
    explicit CasoPasta(const QString& pasta, bool somenteLeitura = false);

    bool SomenteLeitura() const override;
    QString Item(const QString& nome) const override;

    const QString& Diretorio() const { return mDiretorio; }

private:
    QString mDiretorio;
    QString mNome;
    QString mEstudo;
    QDateTime mCriacao;
    bool mSomenteLeitura;
};

}  // namespace halvo
