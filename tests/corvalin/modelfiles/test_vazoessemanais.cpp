#include "corvalin/options/Opcoes.h"
#include "platform/recordstore/Recordstore.h"
#include "platform/runtime/ErroVB.h"
#include "tests/corvalin/modelfiles/CasoModelo.h"

#include <algorithm>

namespace {

using corvalin::Historico;
using corvalin::Posto;

// A data line as the writer lays it out: the fields (value and point) right-aligned in 7 columns,
// one blank before each, and the year in columns 77 to 80.
QString linhaDeDados(const QStringList& campos, const QString& ano) {
    QString linha;
    for (const QString& campo : campos) {
        linha += u' ' + campo.rightJustified(7);
    }
    return linha.leftJustified(76) + ano.rightJustified(4);
}

// A full year of 52 weeks, every value 100 plus its week.
QStringList anoCompleto(int ano) {
    QStringList linhas;
    for (int j = 0; j < 6; ++j) {
        QStringList campos;
        for (int k = 1; k <= (j < 5 ? 9 : 7); ++k) {
            campos << QString::number(100 + j * 9 + k) + u'.';
        }
        linhas << linhaDeDados(campos, QString::number(ano));
    }
    return linhas;
}

class VazoesSemanaisTeste : public teste::CasoModelo {
protected:
    bool importa(const QString& caminho, Posto& posto, bool semNomesPadrao = false,
                 bool soCabecalho = false) {
        return arq.importaVazoesSemanais(caminho, erros, progresso, posto, postoBD, opcoesBD, semNomesPadrao,
                                         soCabecalho);
    }
    // A weekly flows file of station 33 "Jupiá" with the given period line and data lines.
    QString arquivoDoPosto(const QString& periodo, const QStringList& dados) {
        return arquivo(QStringLiteral("JUPIA.dat"),
                       linhas(QStringList{QStringLiteral("      33 Jupiá"), periodo} + dados));
    }
    QString caminhoGerado(const Posto& posto) const {
        return gerado(posto.Codigo, posto.Arquivos.ArquivoVazoesSemanais);
    }
    void esperaNadaGravado() {
        EXPECT_EQ(contaLinhas(QStringLiteral("Postos")), 0);
        EXPECT_EQ(contaLinhas(QStringLiteral("VazoesSemanais")), 0);
        EXPECT_EQ(contaLinhas(QStringLiteral("DadosGerais")), 0);
    }
};

TEST_F(VazoesSemanaisTeste, GeraOsArquivosDouradosComAcentosE53Semanas) {
    for (const auto& [posto, vazoes, dourado] :
         {std::tuple{teste::SaoSimao(), teste::HistoricoSaoSimao(), QStringLiteral("sao_simao/SSIMAO.dat")},
          std::tuple{teste::TresMarias(), teste::HistoricoTresMarias(),
                     QStringLiteral("tres_marias/TMARIAS.dat")}}) {
        grava(posto, vazoes);
        progresso.Valores.clear();
        ASSERT_TRUE(arq.geraVazoesSemanais(pastaExecucao(), posto, postoBD, progresso));
        EXPECT_EQ(conteudo(caminhoGerado(posto)), CasoModelo::dourado(dourado)) << dourado.toStdString();
        ASSERT_FALSE(progresso.Valores.empty());
        EXPECT_EQ(progresso.Valores.front(), 0);
        EXPECT_DOUBLE_EQ(progresso.Valores[1], 100.0 / (3 * posto.getNumSemanas()))
            << "week 1 of the first year";
        EXPECT_TRUE(std::is_sorted(progresso.Valores.begin(), progresso.Valores.end()));
    }
    // A few bytes checked by hand: the code in columns 1 to 8, "ã" as one Windows-1252 byte, the
    // final "." of the area, and the year in columns 77 to 80 of an 80-column line.
    const QByteArray bytes = conteudo(caminhoGerado(teste::SaoSimao()));
    EXPECT_TRUE(bytes.startsWith("      33 S\xe3o Sim\xe3o   "));
    EXPECT_EQ(bytes.mid(69, 23), QByteArray("\r\n 1995 1997171000.5.\r\n"));
    EXPECT_EQ(bytes.mid(92, 10), QByteArray(" 100000.  "));
    EXPECT_EQ(bytes.mid(92 + 76, 6), QByteArray("1995\r\n"));
}

TEST_F(VazoesSemanaisTeste, TextoMaiorQueSeuCampoFalhaNaEscrita) {
    Posto posto = teste::SaoSimao();
    posto.Nome = QString(60, u'N');
    grava(posto, teste::HistoricoSaoSimao());
    ASSERT_TRUE(arq.geraVazoesSemanais(pastaExecucao(), posto, postoBD, progresso));
    EXPECT_EQ(conteudo(caminhoGerado(posto)).indexOf("\r\n"), 69) << "sixty characters take no padding";

    posto.Nome += u'N';
    EXPECT_THROW(arq.geraVazoesSemanais(pastaExecucao(), posto, postoBD, progresso), plataforma::ErroVB);
    Historico vazoes = teste::HistoricoSaoSimao();
    vazoes(2, 3) = 1234567;
    grava(teste::SaoSimao(), vazoes);
    EXPECT_THROW(arq.geraVazoesSemanais(pastaExecucao(), teste::SaoSimao(), postoBD, progresso),
                 plataforma::ErroVB);
}

TEST_F(VazoesSemanaisTeste, LeOArquivoDouradoEmOutroCaso) {
    corvalin::Opcoes opcoes;
    opcoes.Arquivos.ArquivoVazoesSemanais = QStringLiteral("[Código do Posto].dat");
    opcoes.Arquivos.ArquivoRelatorio = QStringLiteral("[Nome do Aproveitamento].rel");
    opcoesBD.setOpcoes(opcoes);

    Posto posto;
    ASSERT_TRUE(importa(caminhoDourado(QStringLiteral("sao_simao/SSIMAO.dat")), posto));
    EXPECT_TRUE(erros.isEmpty());
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
    EXPECT_EQ(progresso.Valores.front(), 0);

    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_EQ(lido.Nome, QStringLiteral("São Simão"));
    EXPECT_EQ(lido.Area, 171000.5f);
    EXPECT_EQ(lido.AnoInicial, 1995);
    EXPECT_EQ(lido.AnoFinal, 1997);
    EXPECT_TRUE(teste::MesmoHistorico(teste::HistoricoSaoSimao(), historico(lido)));
    EXPECT_EQ(lido.Arquivos.ArquivoVazoesSemanais, QStringLiteral("33.dat")) << "the case's default names";
    EXPECT_EQ(lido.Arquivos.ArquivoRelatorio, QStringLiteral("São Simã.rel"));

    // The 53-week station, whose last year stops within its third line; no default names.
    Posto tresMarias;
    tresMarias.Arquivos.CasoUsa53Semanas = 1;
    ASSERT_TRUE(importa(caminhoDourado(QStringLiteral("tres_marias/TMARIAS.dat")), tresMarias, true));
    ASSERT_TRUE(le(156, lido));
    EXPECT_EQ(lido.Nome, QStringLiteral("Três Marias"));
    lido.Arquivos.CasoUsa53Semanas = 1;
    EXPECT_TRUE(teste::MesmoHistorico(teste::HistoricoTresMarias(), historico(lido)));
    EXPECT_EQ(contaLinhas(QStringLiteral("DadosGerais")), 1) << "only São Simão took default names";
}

TEST_F(VazoesSemanaisTeste, ZeroNoMeioDoAnoSoSobreviveNoFimDaSextaLinha) {
    const auto escreveELe = [this](int semanaZero, Posto& lido) {
        Historico vazoes = teste::HistoricoSaoSimao();
        vazoes(1, semanaZero) = 0;
        grava(teste::SaoSimao(), vazoes);
        EXPECT_TRUE(arq.geraVazoesSemanais(pastaExecucao(), teste::SaoSimao(), postoBD, progresso));
        lido = Posto();
        erros.clear();
        return importa(caminhoGerado(teste::SaoSimao()), lido, true);
    };
    Posto lido;

    // Week 5 ends 1995 in its first line: the reader meets 1996 in the second line and names the
    // line before it.
    EXPECT_FALSE(escreveELe(5, lido));
    EXPECT_EQ(erros, QStringLiteral("Vazões Semanais (o ano 1995 está incompleto - linha: 3)"));
    Historico gravado = teste::HistoricoSaoSimao();
    gravado(1, 5) = 0;
    EXPECT_TRUE(teste::MesmoHistorico(gravado, historico(teste::SaoSimao()))) << "the case is as it was";

    // Behind the first value of the sixth line, the rest of the year is just zeros.
    ASSERT_TRUE(escreveELe(50, lido));
    gravado = teste::HistoricoSaoSimao();
    for (int semana = 50; semana <= 52; ++semana) {
        gravado(1, semana) = 0;
    }
    EXPECT_TRUE(teste::MesmoHistorico(gravado, historico(lido)));

    // As the first value of the sixth line, no sixth line is written: 1996's first line takes its
    // place unchecked and everything after it is one line out of step.
    ASSERT_TRUE(escreveELe(46, lido));
    const Historico foraDePasso = historico(lido);
    EXPECT_EQ(foraDePasso(1, 46), 1000 + 37 * 1 + 11 + 0.5f) << "1996's week 1";
    EXPECT_EQ(foraDePasso(2, 1), 12.f) << "1996's week 10";
}

TEST_F(VazoesSemanaisTeste, CodigoDasColunas3A10ENomeSempreTrocado) {
    const QString periodo = QStringLiteral(" 2000 2000   100.");
    const QStringList dados = {linhaDeDados({QStringLiteral("5.")}, QStringLiteral("2000"))};
    const auto codigoLido = [&](const QString& identificacao, std::int32_t codigoDado = 0) {
        Posto posto;
        posto.Codigo = codigoDado;
        const QString caminho =
            arquivo(QStringLiteral("codigo.dat"), linhas(QStringList{identificacao, periodo} + dados));
        EXPECT_TRUE(importa(caminho, posto, true));
        return std::pair{posto.Codigo, posto.Nome};
    };
    // Seven digits lose the first one; a name that begins with a digit extends the code.
    EXPECT_EQ(codigoLido(QStringLiteral(" 1234567 Ilha Solteira")),
              std::pair(234567, QStringLiteral("Ilha Solteira")));
    EXPECT_EQ(codigoLido(QStringLiteral("      33 3 Irmãos")), std::pair(333, QStringLiteral("3 Irmãos")));
    // A code already in the record wins, and the file's station lands under it with its name.
    EXPECT_EQ(codigoLido(QStringLiteral("      33 Jupiá"), 77), std::pair(77, QStringLiteral("Jupiá")));
    Posto lido;
    EXPECT_TRUE(le(77, lido));
    EXPECT_EQ(historico(lido)(1, 1), 5.f);
    EXPECT_TRUE(erros.isEmpty());
}

TEST_F(VazoesSemanaisTeste, CamposEntreZerosEUltimoAnoQueAcabaCedo) {
    // A value without its point reads ten times too large; blank and bare "." read as 0, and so
    // does a negative value, whose sign stands behind the leading zero.
    const QStringList campos = {QStringLiteral("123"), QStringLiteral("123.5"),  QString(),
                                QStringLiteral("."),   QStringLiteral("-7.25."), QStringLiteral("1 2.")};
    const QString linha = linhaDeDados(campos, QStringLiteral("2001"));
    // The last year: a full first line, then a line that stops inside its fourth field.
    const QString curta =
        linhaDeDados({QStringLiteral("1."), QStringLiteral("2."), QStringLiteral("3."), QStringLiteral("4.")},
                     QString())
            .left(29);
    // A short sixth line before the last year is not checked: its missing fields are zeros.
    QStringList anterior = anoCompleto(2000);
    anterior[5] = anterior[5].left(17);
    Posto posto;
    ASSERT_TRUE(importa(arquivoDoPosto(QStringLiteral(" 2000 2001  2500.5."), anterior << linha << curta),
                        posto, true));
    EXPECT_EQ(posto.Area, 2500.5f);
    const Historico vazoes = historico(posto);
    EXPECT_EQ(vazoes(1, 47), 147.f);
    EXPECT_EQ(vazoes(1, 48), 0.f);
    const float esperados[] = {1230, 123.5f, 0, 0, 0, 12, 0, 0, 0, 1, 2, 3, 0};
    for (int semana = 1; semana <= 13; ++semana) {
        EXPECT_EQ(vazoes(2, semana), esperados[semana - 1]) << "week " << semana;
    }

    // The last year may also end at a line boundary, even right after the period line.
    ASSERT_TRUE(importa(arquivoDoPosto(QStringLiteral(" 2001 2001   10."), {}), posto, true));
    EXPECT_EQ(historico(posto)(1, 1), 0.f);
}

TEST_F(VazoesSemanaisTeste, AnoIncompletoNomeiaALinhaAnterior) {
    QStringList dados;
    for (int ano = 1996; ano <= 2000; ++ano) {
        dados << anoCompleto(ano);
    }
    dados[5] = dados[5].left(76) + QStringLiteral("1492");  // the sixth line's year is never looked at
    dados[18 + 3] = dados[18 + 3].left(76) + QStringLiteral("2000");  // line 24 of the file
    erros = QStringLiteral("Dados Gerais");
    Posto posto;
    EXPECT_FALSE(importa(arquivoDoPosto(QStringLiteral(" 1996 2000  900."), dados), posto));
    EXPECT_EQ(erros,
              QStringLiteral("Dados Gerais, Vazões Semanais (o ano 1999 está incompleto - linha: 23)"));
    EXPECT_EQ(posto.AnoInicial, 1996) << "the header stays in the record";
    esperaNadaGravado();

    // A short line before the last year reads its blank year as 0; blanks alone are no entry.
    dados[18 + 3] = anoCompleto(1999)[3];
    dados[7] = dados[7].left(30);
    erros = QStringLiteral("   ");
    EXPECT_FALSE(importa(arquivoDoPosto(QStringLiteral(" 1996 2000  900."), dados), posto));
    EXPECT_EQ(erros, QStringLiteral("   Vazões Semanais (o ano 1997 está incompleto - linha: 9)"));
}

TEST_F(VazoesSemanaisTeste, LeituraDe52SemanasDeArquivoDe53EAoContrario) {
    Posto posto;
    ASSERT_TRUE(importa(caminhoDourado(QStringLiteral("tres_marias/TMARIAS.dat")), posto, true));
    Historico vazoes = historico(posto);
    EXPECT_EQ(vazoes.UBound2(), 52);
    EXPECT_EQ(vazoes(1, 52), 500 + 3.5f * 52);
    EXPECT_EQ(vazoes(2, 1), 603.5f) << "week 53 was skipped, not taken for the next year";

    posto = Posto();
    posto.Arquivos.CasoUsa53Semanas = 1;
    ASSERT_TRUE(importa(caminhoDourado(QStringLiteral("sao_simao/SSIMAO.dat")), posto, true));
    vazoes = historico(posto);
    EXPECT_EQ(vazoes(1, 52), 9876.5f);
    EXPECT_EQ(vazoes(1, 53), 0.f);
    EXPECT_EQ(vazoes(2, 10), 12.f);
}

TEST_F(VazoesSemanaisTeste, SoCabecalhoNaoGravaNada) {
    const QString caminho = arquivoDoPosto(QStringLiteral(" 1931 2020 12345."), {});
    Posto posto;
    ASSERT_TRUE(importa(caminho, posto, false, true));
    EXPECT_EQ(posto.Codigo, 33);
    EXPECT_EQ(posto.Nome, QStringLiteral("Jupiá"));
    EXPECT_EQ(posto.AnoInicial, 1931);
    EXPECT_EQ(posto.AnoFinal, 2020);
    EXPECT_EQ(posto.Area, 12345.f);
    esperaNadaGravado();

    // Read whole, the same file ends in its first year.
    posto = Posto();
    EXPECT_FALSE(importa(caminho, posto));
    EXPECT_EQ(erros, QStringLiteral("Vazões Semanais"));
    esperaNadaGravado();
}

TEST_F(VazoesSemanaisTeste, FormatoIncompativelAvisaUmaVez) {
    for (const QString& identificacao :
         {QStringLiteral("       0 Jupiá"), QStringLiteral("      33      "), QStringLiteral("ABCDEFGHIJ")}) {
        host.dialogo.limpa();
        progresso.Escondido = 0;
        Posto posto;
        const QString caminho =
            arquivo(QStringLiteral("x.dat"), linhas({identificacao, QStringLiteral(" 1 2 3")}));
        EXPECT_FALSE(importa(caminho, posto)) << identificacao.toStdString();
        ASSERT_EQ(host.dialogo.Mensagens().size(), 1u);
        const auto& mensagem = host.dialogo.Mensagens()[0];
        EXPECT_EQ(
            mensagem.texto,
            QStringLiteral("Arquivo com formato incompatível. Verifique se o arquivo selecionado é válido."));
        EXPECT_EQ(mensagem.titulo, QStringLiteral("Informação"));
        EXPECT_EQ(mensagem.icone, halvo::Icone::Nenhum);
        EXPECT_EQ(mensagem.botoes, halvo::Botoes::Ok);
        EXPECT_EQ(progresso.Escondido, 1) << "the progress is out of the way first";
    }
    EXPECT_TRUE(erros.isEmpty());
    esperaNadaGravado();
}

TEST_F(VazoesSemanaisTeste, FalhasDeLeituraSoEntramNaLista) {
    Posto posto;
    EXPECT_FALSE(importa(host.caminho(QStringLiteral("nada.dat")), posto));
    EXPECT_TRUE(erros.isEmpty()) << "a missing file is no entry";

    const QStringList umAno = anoCompleto(2000);
    const std::pair<QString, QStringList> casos[] = {
        {QStringLiteral("99999 2000  10."), umAno},    // a year beyond 16 bits
        {QStringLiteral(" 2000 1998  10."), {}},       // a negative year count
        {QStringLiteral(" 2000 2000 4E+38."), umAno},  // an area beyond a float
        {QStringLiteral(" 2000 2000  10."),
         {linhaDeDados({QStringLiteral("9E+99")}, QStringLiteral("2000"))}},
        {QStringLiteral(" 1999 2000  10."), anoCompleto(1999).mid(0, 3)},  // the file ends in an earlier year
    };
    for (const auto& [periodo, dados] : casos) {
        erros.clear();
        posto = Posto();
        EXPECT_FALSE(importa(arquivoDoPosto(periodo, dados), posto)) << periodo.toStdString();
        EXPECT_EQ(erros, QStringLiteral("Vazões Semanais")) << periodo.toStdString();
    }
    erros.clear();
    EXPECT_FALSE(
        importa(arquivo(QStringLiteral("so1.dat"), linhas({QStringLiteral("      33 Jupiá")})), posto))
        << "no period line";
    EXPECT_EQ(erros, QStringLiteral("Vazões Semanais"));
    EXPECT_TRUE(host.dialogo.Mensagens().empty());
    esperaNadaGravado();

    // One year fewer than none is still a shape: the station comes in without history.
    ASSERT_TRUE(importa(arquivoDoPosto(QStringLiteral(" 2000 1999  10."), {}), posto, true));
    EXPECT_EQ(contaLinhas(QStringLiteral("Postos")), 1);
}

TEST_F(VazoesSemanaisTeste, FalhaDoBancoNoMeioNaoDeixaMetadeDoPosto) {
    grava(teste::SaoSimao(), teste::HistoricoSaoSimao());
    bd->BancoDeDados().Execute(
        QStringLiteral("CREATE TRIGGER bloqueia BEFORE INSERT ON VazoesSemanais WHEN NEW.Ano = 1997 "
                       "BEGIN SELECT RAISE(ABORT, 'bloqueado'); END"));
    Posto posto;
    posto.Codigo = 33;
    const QString caminho =
        arquivo(QStringLiteral("outro.dat"),
                linhas(QStringList{QStringLiteral("      33 Novo Nome"), QStringLiteral(" 1996 1997   10.")} +
                       anoCompleto(1996) + anoCompleto(1997)));
    EXPECT_FALSE(importa(caminho, posto));
    EXPECT_EQ(erros, QStringLiteral("Vazões Semanais")) << "a store's failure is the file's";
    Posto lido;
    ASSERT_TRUE(le(33, lido));
    EXPECT_EQ(lido.Nome, QStringLiteral("São Simão"));
    EXPECT_EQ(lido.AnoInicial, 1995);
    EXPECT_TRUE(teste::MesmoHistorico(teste::HistoricoSaoSimao(), historico(lido)));
}

}  // namespace
