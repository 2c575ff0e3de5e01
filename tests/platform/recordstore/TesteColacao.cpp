#include "Apoio.h"

namespace {

class Colacao : public BaseDeTeste {
protected:
    void SetUp() override {
        BaseDeTeste::SetUp();
        criaPostos();
        postos = bd->OpenRecordset(QStringLiteral("Postos"));
        int codigo = 0;
        for (const char* nome :
             {"São Simão", "furnas", "Sao Simao", "Água Vermelha", "FURNAS", "Agua Limpa", "Balbina"}) {
            adicionaPosto(*postos, ++codigo, QString::fromUtf8(nome));
        }
        postos->setIndex(QStringLiteral("NomeDoAproveitamento"));
    }

    QStringList nomes() {
        QStringList lidos;
        for (postos->MoveFirst(); !postos->Eof(); postos->MoveNext()) {
            lidos << postos->campo(QStringLiteral("NomeDoAproveitamento")).paraTexto();
        }
        return lidos;
    }

    QString seek(const char* comparacao, const char* nome) {
        postos->Seek(QString::fromLatin1(comparacao), {QString::fromUtf8(nome)});
        return postos->NoMatch() ? QStringLiteral("(nada)")
                                 : postos->campo(QStringLiteral("NomeDoAproveitamento")).paraTexto();
    }

    std::unique_ptr<recordstore::Recordset> postos;
};

}  // namespace

TEST_F(Colacao, TextSortsIgnoringCaseButNotAccents) {
    // Case ties keep the order of insertion; an accent sorts after its plain letter.
    EXPECT_EQ(nomes(),
              QStringList({QStringLiteral("Agua Limpa"), QStringLiteral("Água Vermelha"),
                           QStringLiteral("Balbina"), QStringLiteral("furnas"), QStringLiteral("FURNAS"),
                           QStringLiteral("Sao Simao"), QStringLiteral("São Simão")}));
}

TEST_F(Colacao, SeekMatchesAnyCaseButOnlyTheSameAccents) {
    EXPECT_EQ(seek("=", "Furnas"), "furnas");
    EXPECT_EQ(seek("=", "SÃO SIMÃO"), QStringLiteral("São Simão"));
    EXPECT_EQ(seek("=", "Agua Vermelha"), "(nada)");
    EXPECT_EQ(seek(">=", "agua m"), QStringLiteral("Água Vermelha"));
    EXPECT_EQ(seek(">=", "sao simao"), "Sao Simao");
    postos->Seek(QStringLiteral("="), {QStringLiteral("x").repeated(80)});  // longer than the field: no match
    EXPECT_TRUE(postos->NoMatch());
}

TEST_F(Colacao, AUniqueTextKeyRefusesTheSameTextInAnotherCase) {
    recordstore::TableDef t{QStringLiteral("Siglas"),
                            {recordstore::CreateField(QStringLiteral("Sigla"), recordstore::Tipo::Texto, 10)},
                            {{QStringLiteral("Sigla"), true, QStringLiteral("Sigla")}}};
    bd->Append(t);
    auto siglas = bd->OpenRecordset(QStringLiteral("Siglas"));
    siglas->AddNew();
    siglas->setCampo(QStringLiteral("Sigla"), QStringLiteral("São"));
    siglas->Update();
    siglas->AddNew();
    siglas->setCampo(QStringLiteral("Sigla"), QStringLiteral("Sao"));
    siglas->Update();  // another accent is another text
    siglas->AddNew();
    siglas->setCampo(QStringLiteral("Sigla"), QStringLiteral("SÃO"));
    EXPECT_EQ(numeroDoErro([&] { siglas->Update(); }), 3022);
}
