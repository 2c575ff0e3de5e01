#include "halvo/app/JanelaPrincipal.h"
#include "halvo/app/ListaDeCasos.h"
#include "halvo/app/PainelCasos.h"
#include "halvo/app/UtilitariosSistemaGui.h"
#include "halvo/sdk/Caso.h"
#include "halvo/sdk/IModelo.h"
#include "halvo/sdk/Notificador.h"
#include "halvo/sdk/Servicos.h"
#include "tests/doubles/DialogoRoteirizado.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <map>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

using halvo::EntradaTela;

// A model that keeps what the host gives it and opens plain widgets as its screens.
class ModeloFalso : public halvo::IModelo {
public:
    std::map<std::int32_t, std::vector<EntradaTela>> telas;
    std::shared_ptr<halvo::caso> caso;
    std::shared_ptr<halvo::Notificador> notificador;
    std::vector<std::tuple<std::int16_t, std::int32_t, QObject*>> aberturas;  // item, group, parent
    QStringList apagados;
    int fechamentos = 0;

    QString Modelo() const override { return u"Falso"_s; }
    QString Descricao() const override { return u"Modelo de teste"_s; }
    QString VersaoModelo() const override { return u"1.0"_s; }
    QString VersaoInterface() const override { return u"3.0.0.1"_s; }
    std::int32_t CodigoDoCaso() const override { return caso->Item(u"Codigo"_s).toInt(); }
    std::int32_t ModeloCodigo() const override { return 99; }
    std::int16_t AbrirCaso(std::shared_ptr<halvo::caso> c, std::shared_ptr<halvo::Notificador> n) override {
        caso = std::move(c);
        notificador = std::move(n);
        return 1;
    }
    std::int16_t CriarCaso(const QString&) override { return 0; }
    std::int16_t CopiarCaso(QString&, QString&) override { return 0; }
    std::int16_t FecharCaso() override {
        ++fechamentos;
        return 1;
    }
    std::int16_t ApagarCaso(const QString& pasta) override {
        apagados << pasta;
        return QDir(pasta).removeRecursively() ? 1 : 0;
    }
    std::int16_t JanelaAbrir(std::int16_t item, std::int32_t grupo, QObject* contexto) override {
        aberturas.emplace_back(item, grupo, contexto);
        auto* tela = new QWidget;
        halvo::UtilitariosSistema& sistema = halvo::Servicos::sistema();
        sistema.JanelaFilha(tela, contexto);
        sistema.JanelaRegistra(tela, caso->Item(u"estudo"_s), caso->Item(u"codigo"_s), grupo, item);
        tela->setWindowTitle(u"%1 (%2)"_s.arg(telas.at(grupo).at(item).Titulo, caso->Item(u"nome"_s)));
        tela->show();
        return 1;
    }
    std::optional<std::vector<EntradaTela>> Telas(std::int32_t grupo) const override {
        const auto achado = telas.find(grupo);
        return achado == telas.end() ? std::nullopt : std::optional(achado->second);
    }
    std::int16_t Executar(std::shared_ptr<halvo::Notificador> n) override {
        n->Notifica(*caso, halvo::EventoExecucaoSemErro);
        return 1;
    }
    std::int16_t Converter(const QVariant&) override { return 0; }
    std::int16_t Importar(const QVariant&) override { return 0; }
    std::int16_t Exportar(const QVariant&) override { return 0; }
};

class TesteJanela : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void menusDasTelasSoComCasoAberto();
    void somenteLeituraChegaAoCasoEFicaGravado();
    void eventosNaBarraDeEstado();
    void apagarLevaAsTelasDoCaso();

private:
    QAction& acao(const char* nome) const;
    void abre(std::int32_t codigo);
    std::int32_t lista(const QString& estudo, const QString& nome);

    std::unique_ptr<QTemporaryDir> mPasta;
    teste::DialogoRoteirizado mDialogo;
    halvo::UtilitariosSistemaGui mSistema;
    std::unique_ptr<halvo::InstalacaoServicos> mServicos;
    ModeloFalso mModelo;
    std::unique_ptr<halvo::ListaDeCasos> mLista;
    std::unique_ptr<halvo::JanelaPrincipal> mJanela;
};

void TesteJanela::initTestCase() {
    QStandardPaths::setTestModeEnabled(true);
}

void TesteJanela::init() {
    mPasta = std::make_unique<QTemporaryDir>();
    QFile::remove(halvo::ListaDeCasos::ArquivoPadrao());
    mServicos = std::make_unique<halvo::InstalacaoServicos>(&mDialogo, &mSistema, nullptr);
    mModelo = ModeloFalso();
    mModelo.telas[1] = {{},
                        {u"Opções"_s, 4, true},
                        {u"Dados Gerais"_s, 4, false},
                        {u"Histórico"_s, 1, true},
                        {u"Limites"_s, 1, false}};
    mModelo.telas[3] = {{}, {u"Execução"_s, 0, true}};
    mLista = std::make_unique<halvo::ListaDeCasos>();
    lista(u"Estudo A"_s, u"Caso 1"_s);
    lista(u"Estudo A"_s, u"Caso 2"_s);
    mJanela = std::make_unique<halvo::JanelaPrincipal>(mModelo, *mLista);
    mSistema.setPrincipal(mJanela.get());
}

void TesteJanela::cleanup() {
    mJanela.reset();
    mLista.reset();
    mServicos.reset();
    mDialogo.limpa();
    mPasta.reset();
}

QAction& TesteJanela::acao(const char* nome) const {
    auto* achada = mJanela->findChild<QAction*>(QString::fromLatin1(nome));
    if (achada == nullptr) {
        qFatal("no action %s", nome);
    }
    return *achada;
}

void TesteJanela::abre(std::int32_t codigo) {
    mJanela->findChild<halvo::PainelCasos*>()->Seleciona(codigo);
    acao("acaoAbrir").trigger();
}

std::int32_t TesteJanela::lista(const QString& estudo, const QString& nome) {
    halvo::EntradaCaso entrada;
    entrada.Estudo = estudo;
    entrada.Nome = nome;
    entrada.Pasta = mPasta->filePath(estudo + u'/' + nome);
    QDir().mkpath(entrada.Pasta);
    return mLista->Adiciona(entrada);
}

void TesteJanela::menusDasTelasSoComCasoAberto() {
    QStringList cadastro;
    for (QAction* item : mJanela->findChild<QMenu*>(u"menuGrupo_1"_s)->actions()) {
        cadastro << (item->isSeparator() ? u"--"_s : item->text());
    }
    QCOMPARE(cadastro, (QStringList{u"Opções"_s, u"Dados Gerais"_s, u"--"_s, u"Histórico"_s, u"Limites"_s}));
    QVERIFY(!acao("acaoTela_1_3").isEnabled());
    QVERIFY(!acao("acaoExecutar").isEnabled());
    QVERIFY(!acao("acaoFechar").isEnabled());
    QVERIFY(!acao("acaoAbrir").isEnabled());

    abre(1);
    QCOMPARE(mModelo.caso->Item(u"nome"_s), u"Caso 1"_s);
    QCOMPARE(mModelo.caso->Item(u"Codigo"_s), u"1"_s);
    QCOMPARE(mModelo.caso->Item(u"Diretorio"_s),
             QDir::toNativeSeparators(mPasta->filePath(u"Estudo A/Caso 1"_s)) + QDir::separator());
    QVERIFY(acao("acaoTela_1_3").isEnabled());
    QVERIFY(!acao("acaoAbrir").isEnabled());
    QCOMPARE(mJanela->windowTitle(), u"Halvo - Estudo A / Caso 1"_s);

    acao("acaoTela_1_3").trigger();
    QCOMPARE(mModelo.aberturas.size(), 1u);
    QVERIFY(mModelo.aberturas[0] == std::tuple(3, 1, &mJanela->Area()));
    const QList<QMdiSubWindow*> subjanelas = mJanela->Area().subWindowList();
    QCOMPARE(subjanelas.size(), 1);
    QCOMPARE(subjanelas[0]->windowTitle(), u"Histórico (Caso 1)"_s);
    const auto registro = halvo::UtilitariosSistemaGui::RegistroDe(*subjanelas[0]->widget());
    QVERIFY(registro.has_value());
    QVERIFY(std::tie(registro->estudo, registro->caso, registro->grupo, registro->item) ==
            std::tuple(u"Estudo A"_s, u"1"_s, 1, 3));

    // Another case closes the first one; closing a case leaves its screens.
    abre(2);
    QCOMPARE(mModelo.fechamentos, 1);
    acao("acaoFechar").trigger();
    QCOMPARE(mModelo.fechamentos, 2);
    QVERIFY(!acao("acaoTela_1_3").isEnabled());
    QCOMPARE(mJanela->Area().subWindowList().size(), 1);
    QCOMPARE(mJanela->windowTitle(), u"Halvo"_s);

    acao("acaoSobre").trigger();
    QCOMPARE(mDialogo.Mensagens().size(), 1u);
    QCOMPARE(mDialogo.Mensagens()[0].titulo, u"Sobre o Halvo"_s);
    for (const char* parte : {"Falso", "Modelo de teste", "1.0", "3.0.0.1"}) {
        QVERIFY(mDialogo.Mensagens()[0].texto.contains(QString::fromUtf8(parte)));
    }
}

void TesteJanela::somenteLeituraChegaAoCasoEFicaGravado() {
    mJanela->findChild<halvo::PainelCasos*>()->Seleciona(2);
    QVERIFY(!acao("acaoSomenteLeitura").isChecked());
    acao("acaoSomenteLeitura").trigger();
    abre(2);
    QVERIFY(mModelo.caso->SomenteLeitura());
    QVERIFY(acao("acaoSomenteLeitura").isChecked());

    halvo::ListaDeCasos relida;
    QVERIFY(relida.Carrega());
    QVERIFY(relida.Procura(2)->SomenteLeitura);
    QVERIFY(!relida.Procura(1)->SomenteLeitura);

    // The open case's object follows, for the screens opened from now on.
    acao("acaoSomenteLeitura").trigger();
    QVERIFY(!mModelo.caso->SomenteLeitura());
    QVERIFY(relida.Carrega());
    QVERIFY(!relida.Procura(2)->SomenteLeitura);
}

void TesteJanela::eventosNaBarraDeEstado() {
    auto* painel = mJanela->findChild<halvo::PainelCasos*>();
    painel->Seleciona(1);
    QTest::keyClick(painel, Qt::Key_Return);
    QTRY_COMPARE(mJanela->Gerente().Aberto(), std::optional<std::int32_t>(1));
    acao("acaoExecutar").trigger();
    QCOMPARE(mJanela->statusBar()->currentMessage(), u"Execução concluída com sucesso."_s);
    const std::vector<std::pair<std::int32_t, QString>> eventos{{0, u"Importação terminada com problemas."_s},
                                                                {1, u"Importação concluída."_s},
                                                                {3, u"Alterações gravadas."_s},
                                                                {5, u"Execução terminada com erros."_s},
                                                                {42, u"Evento 42."_s}};
    for (const auto& [evento, frase] : eventos) {
        mModelo.notificador->Notifica(*mModelo.caso, evento);
        QCOMPARE(mJanela->statusBar()->currentMessage(), frase);
    }
}

// A screen of the deleted case goes with it; a screen of another case stays.
void TesteJanela::apagarLevaAsTelasDoCaso() {
    const QString pasta = QDir::toNativeSeparators(mPasta->filePath(u"Estudo A/Caso 2"_s));
    abre(1);
    acao("acaoTela_3_1").trigger();
    abre(2);
    acao("acaoTela_1_1").trigger();
    QCOMPARE(mJanela->Area().subWindowList().size(), 2);

    mDialogo.responde(halvo::Resposta::Nao);
    acao("acaoApagar").trigger();
    QVERIFY(QDir(pasta).exists());
    mDialogo.responde(halvo::Resposta::Sim);
    acao("acaoApagar").trigger();
    QCOMPARE(mDialogo.Mensagens().size(), 2u);
    QCOMPARE(mDialogo.Mensagens()[1].titulo, u"Confirmação"_s);
    QCOMPARE(mModelo.apagados, QStringList{pasta});
    QCOMPARE(mJanela->Area().subWindowList().size(), 1);
    QCOMPARE(mJanela->Area().subWindowList()[0]->windowTitle(), u"Execução (Caso 1)"_s);
    QVERIFY(!mJanela->Gerente().Aberto().has_value());
    halvo::ListaDeCasos relida;
    QVERIFY(relida.Carrega());
    QCOMPARE(relida.Casos().size(), 1u);
    QVERIFY(relida.ProcuraPasta(pasta) == nullptr);
}

}  // namespace

QTEST_MAIN(TesteJanela)
#include "test_janela.moc"
