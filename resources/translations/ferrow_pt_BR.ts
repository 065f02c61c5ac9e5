<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>Com alimentação externa</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>Aguardando dados</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>Na bateria</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>Carregando</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>Não está carregando</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>Carga completa</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>Adaptador de energia conectado</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>Sem alimentação externa</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1 h %L2 min</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>Boa</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>Razoável</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>Ruim</translation>
    </message>
    <message id="FERROW">
        <source>FERROW</source>
        <translation>FERROW</translation>
    </message>
    <message id="%.1f W">
        <source>%.1f W</source>
        <translation>%.1f W</translation>
    </message>
    <message id="— W">
        <source>— W</source>
        <translation>— W</translation>
    </message>
    <message id="app.menu_subtitle">
        <source>Power monitor</source>
        <translation>Monitor de energia</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>Notebook simulado · não é esta máquina</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>Desktop simulado · não é esta máquina</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>Ao vivo</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>DESCARGA DA BATERIA</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>Total do sistema</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>Fluxo de energia ao vivo</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>Adaptador</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Sistema do Mac</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>Fonte de energia</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>Bateria</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>Nenhuma bateria detectada</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>Este Mac funciona apenas com alimentação externa.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>Ciclos de carga</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>Tensão</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>Corrente</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>Status da carga</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>Status da bateria</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>Carga completa em</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>Saúde</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1% · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>Permita o Ferrow em Ajustes do Sistema › Itens de Início</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Mova o Ferrow para Aplicativos para abri-lo ao iniciar sessão</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>Abrir ao iniciar sessão</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>Mostrar watts na barra de menus</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>Abrir detalhes</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>Gráficos, células e histórico da bateria</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Abrir o site do Ferrow</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Encerrar o Ferrow</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>Mostrar painel</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>Não há área de barra de menus nesta área de trabalho: o painel abre como janela.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow (simulado) · %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>Detalhes do dispositivo</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>Potência, bateria e células em um relance</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>Fazer uma leitura agora</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>Mostrar ou ocultar a barra lateral</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>Monitoramento</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>Atualizado às %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>Rolar até “%1”</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>Visão geral</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>Potência</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>Carga e saúde</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>Células</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>Funcionando com alimentação externa</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>Carregando</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>Este Mac não tem bateria; toda a energia vem da sua fonte.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>A potência do adaptador é dividida entre o sistema e a bateria.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>A bateria alimenta todo o sistema.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>Distribuição de potência</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>A potência do chip fica vazia: nesta máquina Linux, só o root pode ler os contadores de energia do processador. A seção “Chip power on Linux” do README mostra uma regra udev que permite isso.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>Entrada CC</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>Potência da bateria</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>Histórico de potência</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>Intervalo de tempo</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 min</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>Aguardando leituras</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>O gráfico é preenchido uma vez por segundo.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>Média</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>Pico</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>Watts</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>Este Mac funciona apenas com alimentação externa.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>Capacidade de projeto</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>Capacidade de carga total</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>Capacidade nominal de carga total</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln vez</numerusform>
            <numerusform>%Ln vezes</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>Tensões das células</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>Sem tensões de célula</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>Esta bateria não informa suas células.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>Informado pela bateria</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>Lido do controlador de gerenciamento do sistema</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>Este Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>Uma vez por segundo</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>Potência da GPU</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>Número de série da bateria</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>Tempo total de operação</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>Histórico de vida útil</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 d %L2 h</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>Temperatura máxima da bateria</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>Temperatura mínima da bateria</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>Temperatura média da bateria</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>Tensão máxima do conjunto</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>Tensão mínima do conjunto</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>Corrente máxima de carga</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>Corrente máxima de descarga</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>Eventos de proteção de segurança</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>Baterias</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>Carga</translation>
    </message>
    <message id="power.usb_c_contract">
        <source>USB-C %1 V · %2 A</source>
        <translation>USB-C %1 V · %2 A</translation>
    </message>
    <message id="power.usb_c_voltage">
        <source>USB-C %1 V</source>
        <translation>USB-C %1 V</translation>
    </message>
    <message id="section.energy_history">
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>O histórico está desativado.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>O histórico não está sendo mantido: %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>Ainda não há histórico: o Ferrow registra a energia uma vez por minuto.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>O Ferrow mantém o histórico desde %1</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>Período</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 dias</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 dias</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 meses</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>Do adaptador</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>Da bateria</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>Nada registrado neste período</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>Sessões recentes</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>Nenhuma sessão registrada ainda.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>Saúde da bateria ao longo do tempo</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>Saúde (%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>Capacidade de carga total (mAh)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>Na bateria</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>No adaptador</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>Na bateria há %1 · %2 usados</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>No adaptador há %1 · %2 fornecidos</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>Média %1 · Pico %2</translation>
    </message>
    <message id="session.two_units">
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message id="session.minutes" numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln min</numerusform>
            <numerusform>%Ln min</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln h</numerusform>
            <numerusform>%Ln h</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln dia</numerusform>
            <numerusform>%Ln dias</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>Manter histórico de energia</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>Desativar o histórico de energia?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>O Ferrow apagará o histórico de energia mantido neste computador. Isso não pode ser desfeito.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>Apagar histórico</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>Este computador funciona apenas com alimentação externa.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>Este computador não tem bateria; toda a energia vem da sua fonte.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>indisponível</translation>
    </message>
    <message id="accessibility.reading">
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message id="accessibility.note">
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message id="accessibility.watts">
        <source>%1 watts</source>
        <translation>%1 watts</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 volts</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 ampères</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 graus Celsius</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln miliampère-hora</numerusform>
            <numerusform>%Ln miliampères-hora</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln hertz</numerusform>
            <numerusform>%Ln hertz</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>Célula %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>Adaptador %1 para o sistema %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>Bateria %1 para o sistema %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>Adaptador %1 para o sistema %2 e a bateria %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>Adaptador %1 e bateria %2 para o sistema %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>O carregador não dá conta</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>A bateria está descarregando %1 mesmo com a alimentação externa conectada: adaptador %2 (%3, %4), sistema %5, bateria %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>A bateria está descarregando %1 mesmo com a alimentação externa conectada: sistema %2, bateria %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>Carregando devagar</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>A fonte USB-C fornece apenas %1, por isso a bateria carrega devagar: adaptador %2, sistema %3, bateria %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>O adaptador fornece menos do que o sistema consumiu em média %1, por isso a bateria carrega devagar: adaptador %2, sistema %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>Bateria quente</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>A bateria está a %1, no limite de %2 ou acima.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>A bateria está a %1 ou mais durante a carga, e assim %2: agora %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>Células da bateria desequilibradas</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>As tensões das células diferem em mais de %1 em repouso, e assim %2: agora %3 de diferença (de %4 a %5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>Nível de carga atingido</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>A bateria atingiu o nível escolhido de %1.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>há %Ln minuto</numerusform>
            <numerusform>há %Ln minutos</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>no último %Ln minuto</numerusform>
            <numerusform>nos últimos %Ln minutos</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 e mais %Ln</numerusform>
            <numerusform>%1 e mais %Ln</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>Cada alerta aparece uma vez e, enquanto persistir, se repete no máximo a cada %Ln minuto.</numerusform>
            <numerusform>Cada alerta aparece uma vez e, enquanto persistir, se repete no máximo a cada %Ln minutos.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>Ao carregar, acima de</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>A qualquer momento, acima de</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>As notificações do Ferrow estão desativadas nos ajustes do sistema</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>Apps</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>Energia por app</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>Mais energia nesta sessão</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Mais energia desde que o Ferrow foi aberto</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>Nada medido ainda nesta sessão</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>Nada medido ainda</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>Sessão</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 dias</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 dias</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>Em %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>App</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>Energia</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>Potência média</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>Parcela</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>Tempo de CPU</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>Parcela do tempo de CPU</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>Ordenar por energia</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>Ordenar por potência média</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow (este app)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>desde que foi aberto</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>Sistema e outros usuários</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>Outros apps</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>Medida pelo sistema para cada app</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>Estimada: a energia medida do processador, dividida pelo tempo de CPU de cada app</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>Estimada: a parcela do processador na potência medida do sistema, dividida pelo tempo de CPU</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>Só tempo de CPU: este computador não mede energia</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 indica uma estimativa</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>estimada</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>medida</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>Nada registrado neste período ainda</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>O Ferrow não mantém histórico, então só a sessão atual tem uma lista. Ative “Manter histórico de energia” em Histórico para guardar os próximos dias.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
    <message id="apps.seconds" numerus="yes">
        <source>%Ln s</source>
        <translation>
            <numerusform>%Ln s</numerusform>
            <numerusform>%Ln s</numerusform>
        </translation>
    </message>
    <message id="accessibility.percent">
        <source>%1 percent</source>
        <translation>%1 por cento</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 watts-hora</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln miliwatt-hora</numerusform>
            <numerusform>%Ln miliwatts-hora</numerusform>
        </translation>
    </message>
</context>
</TS>
