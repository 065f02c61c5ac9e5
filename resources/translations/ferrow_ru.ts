<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>Внешнее питание</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>Ожидание данных</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>От аккумулятора</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>Заряжается</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>Не заряжается</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>Полностью заряжен</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>Адаптер питания подключён</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>Нет внешнего питания</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1 мин</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1 ч %L2 мин</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>Хорошее</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>Удовлетворительное</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>Плохое</translation>
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
        <translation>Монитор питания</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>Симулированный ноутбук · не этот компьютер</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>Симулированный настольный ПК · не этот компьютер</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>Онлайн</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>РАЗРЯД АККУМУЛЯТОРА</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>Всего по системе</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>Поток энергии в реальном времени</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>Адаптер</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Система Mac</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>Источник питания</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>Частота опроса</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>Аккумулятор</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>Аккумулятор не обнаружен</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>Этот Mac работает только от внешнего питания.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>Число циклов</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>Напряжение</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>Ток</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>Статус зарядки</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>Статус аккумулятора</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>До полного заряда</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>Состояние</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>Температура</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1 % · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>Разрешите Ferrow в Настройках › Объекты входа</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Переместите Ferrow в «Программы» для запуска при входе</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>Открывать при входе</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>Показывать ватты в строке меню</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>Открыть подробности</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>Графики, ячейки и история аккумулятора</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Открыть сайт Ferrow</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Завершить Ferrow</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>Показать панель</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>На этом рабочем столе нет строки меню: панель открывается в окне.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow (симуляция) · %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>Сведения об устройстве</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>Мощность, аккумулятор и ячейки с первого взгляда</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>Снять показания сейчас</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>Показать или скрыть боковую панель</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>Мониторинг</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>Обновлено в %1</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>Перейти к разделу «%1»</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>Обзор</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>Мощность</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>Заряд и состояние</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>Ячейки</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>Работа от внешнего питания</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>Заряжается</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>У этого Mac нет аккумулятора; вся энергия поступает от блока питания.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>Мощность адаптера делится между системой и аккумулятором.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>Аккумулятор питает всю систему.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>Распределение мощности</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>Мощность чипа не показывается: на этом компьютере с Linux счётчики энергии процессора может читать только root. Раздел «Chip power on Linux» в README описывает правило udev, которое это разрешает.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>Вход пост. тока</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>Мощность аккумулятора</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>История мощности</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>Период</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1 мин</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>Ожидание показаний</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>График заполняется каждую секунду.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>Среднее</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>Пик</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>Ватты</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>Этот Mac работает только от внешнего питания.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>Проектная ёмкость</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>Ёмкость при полном заряде</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>Номинальная ёмкость при полном заряде</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln раз</numerusform>
            <numerusform>%Ln раза</numerusform>
            <numerusform>%Ln раз</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>Напряжения ячеек</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>Нет данных о напряжении ячеек</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>Этот аккумулятор не сообщает данные ячеек.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>Сообщено аккумулятором</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>Считано с контроллера управления системой</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>Этот Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>Раз в секунду</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>Мощность GPU</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>Серийный номер аккумулятора</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>Общее время работы</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>История за весь срок службы</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1 дн. %L2 ч</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>Максимальная температура аккумулятора</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>Минимальная температура аккумулятора</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>Средняя температура аккумулятора</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>Максимальное напряжение блока</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>Минимальное напряжение блока</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>Максимальный ток заряда</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>Максимальный ток разряда</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>Срабатывания защиты</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>Аккумуляторы</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>Заряд</translation>
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
        <translation>История</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>История отключена.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>История не ведётся: %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>Истории пока нет: Ferrow записывает энергию раз в минуту.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow ведёт историю с %1</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>Период</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7 дней</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30 дней</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12 месяцев</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>Энергия</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>От адаптера</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>От аккумулятора</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>За этот период нет записей</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>Последние сеансы</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>Сеансов пока нет.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>Состояние аккумулятора со временем</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>Состояние (%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>Ёмкость полного заряда (мА·ч)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>От аккумулятора</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>От адаптера</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>От аккумулятора %1 · израсходовано %2</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>От адаптера %1 · получено %2</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>Среднее %1 · Пик %2</translation>
    </message>
    <message id="session.two_units">
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message id="session.minutes" numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln мин</numerusform>
            <numerusform>%Ln мин</numerusform>
            <numerusform>%Ln мин</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln ч</numerusform>
            <numerusform>%Ln ч</numerusform>
            <numerusform>%Ln ч</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln день</numerusform>
            <numerusform>%Ln дня</numerusform>
            <numerusform>%Ln дней</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>Хранить историю энергии</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>Отключить историю энергии?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow удалит историю энергии, сохранённую на этом компьютере. Это действие нельзя отменить.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>Удалить историю</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>Этот компьютер работает только от внешнего питания.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>У этого компьютера нет аккумулятора; вся энергия поступает от блока питания.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>нет данных</translation>
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
        <translation>%1 ватта</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 вольта</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 ампера</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>%1 градуса Цельсия</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln миллиампер-час</numerusform>
            <numerusform>%Ln миллиампер-часа</numerusform>
            <numerusform>%Ln миллиампер-часов</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln герц</numerusform>
            <numerusform>%Ln герца</numerusform>
            <numerusform>%Ln герц</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>Ячейка %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>Адаптер %1 в систему %2</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>Аккумулятор %1 в систему %2</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>Адаптер %1 в систему %2 и аккумулятор %3</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>Адаптер %1 и аккумулятор %2 в систему %3</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>Зарядное устройство не справляется</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>Аккумулятор разряжается %1, хотя подключено внешнее питание: адаптер %2 (%3, %4), система %5, аккумулятор %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>Аккумулятор разряжается %1, хотя подключено внешнее питание: система %2, аккумулятор %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>Медленная зарядка</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>Источник USB-C даёт только %1, поэтому аккумулятор заряжается медленно: адаптер %2, система %3, аккумулятор %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>Адаптер даёт меньше, чем система в среднем потребляла %1, поэтому аккумулятор заряжается медленно: адаптер %2, система %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>Аккумулятор перегрет</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>Температура аккумулятора %1 — на пределе %2 или выше.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>При зарядке аккумулятор нагрет до %1 и выше, и так %2: сейчас %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>Дисбаланс ячеек аккумулятора</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>Напряжения ячеек в покое расходятся более чем на %1, и так %2: сейчас на %3 (от %4 до %5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>Уровень заряда достигнут</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>Аккумулятор зарядился до выбранного уровня %1.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>уже %Ln минуту</numerusform>
            <numerusform>уже %Ln минуты</numerusform>
            <numerusform>уже %Ln минут</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>за последнюю %Ln минуту</numerusform>
            <numerusform>за последние %Ln минуты</numerusform>
            <numerusform>за последние %Ln минут</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 и ещё %Ln</numerusform>
            <numerusform>%1 и ещё %Ln</numerusform>
            <numerusform>%1 и ещё %Ln</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>Оповещения</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>Каждое оповещение показывается один раз и, пока условие сохраняется, повторяется не чаще раза в %Ln минуту.</numerusform>
            <numerusform>Каждое оповещение показывается один раз и, пока условие сохраняется, повторяется не чаще раза в %Ln минуты.</numerusform>
            <numerusform>Каждое оповещение показывается один раз и, пока условие сохраняется, повторяется не чаще раза в %Ln минут.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>При зарядке, выше</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>В любое время, выше</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>Уведомления для Ferrow отключены в системных настройках</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>Приложения</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>Энергия по приложениям</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>Больше всего энергии за сеанс</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Больше всего энергии с запуска Ferrow</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>За этот сеанс пока ничего не измерено</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>Пока ничего не измерено</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>Период</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>Сеанс</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7 дней</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30 дней</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>За %1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>Приложение</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>Энергия</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>Средняя мощность</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>Доля</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>Время ЦП</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>Доля времени ЦП</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>Сортировать по энергии</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>Сортировать по средней мощности</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow (это приложение)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>с момента запуска</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>Система и другие пользователи</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>Другие приложения</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>Измерено системой для каждого приложения</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>Оценка: измеренная энергия процессора, распределённая по времени ЦП каждого приложения</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>Оценка: доля процессора в измеренной мощности системы, распределённая по времени ЦП</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>Только время ЦП: этот компьютер не измеряет энергию</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 — оценочное значение</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>оценка</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>измерено</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>За этот период пока ничего не записано</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow не хранит историю, поэтому список есть только для текущего сеанса. Включите «Хранить историю энергии» в разделе «История», чтобы сохранять следующие дни.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>Чтение…</translation>
    </message>
    <message id="apps.seconds" numerus="yes">
        <source>%Ln s</source>
        <translation>
            <numerusform>%Ln с</numerusform>
            <numerusform>%Ln с</numerusform>
            <numerusform>%Ln с</numerusform>
        </translation>
    </message>
    <message id="accessibility.percent">
        <source>%1 percent</source>
        <translation>%1 процента</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 ватт-часа</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln милливатт-час</numerusform>
            <numerusform>%Ln милливатт-часа</numerusform>
            <numerusform>%Ln милливатт-часов</numerusform>
        </translation>
    </message>
</context>
</TS>
