<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>外部電源</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>データを待っています</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>バッテリー駆動</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>充電中</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>充電していません</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>フル充電済み</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>電源アダプタ接続</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>外部電源なし</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1分</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1時間%L2分</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>良好</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>普通</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>低下</translation>
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
        <translation>電力モニタ</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>シミュレートしたノートブック・このマシンではありません</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>シミュレートしたデスクトップ・このマシンではありません</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>バッテリー放電</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>システム合計</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>リアルタイム電力フロー</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>アダプタ</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Macシステム</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>電源</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>サンプリングレート</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>バッテリー</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>バッテリーが見つかりません</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>このMacは外部電源のみで動作します。</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>サイクル数</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>電圧</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>電流</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>充電状況</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>バッテリーの状態</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>フル充電まで</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>健全性</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1% · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>システム設定 › ログイン項目で Ferrow を許可してください</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Ferrow をアプリケーションフォルダに移動してください</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>メニューバーにワット数を表示</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>詳細を開く</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>グラフ、セル、バッテリーの履歴</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Ferrowのウェブサイトを開く</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Ferrowを終了</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>ダッシュボードを表示</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>このデスクトップにはメニューバー領域がないため、ダッシュボードはウインドウとして開きます。</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow(シミュレーション)· %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>デバイスの詳細</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>電力、バッテリー、セルをひと目で</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>今すぐ測定</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>サイドバーの表示/非表示</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>モニタ</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>%1に更新</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>「%1」へスクロール</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>電力</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>充電と健全性</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>セル</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>外部電源で動作中</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>充電中</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>このMacにはバッテリーがなく、すべての電力を電源から得ています。</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>アダプタの電力をシステムとバッテリーで分け合っています。</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>バッテリーがシステム全体に給電しています。</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>電力の配分</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>チップ電力は表示されません。この Linux マシンでは、プロセッサのエネルギーカウンタを読めるのは root だけです。README の「Chip power on Linux」に、読み取りを許可する udev ルールがあります。</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>DC入力</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>バッテリー電力</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>電力履歴</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>期間</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1分</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>測定値を待っています</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>グラフは毎秒更新されます。</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>ピーク</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>ワット</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>このMacは外部電源のみで動作します。</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>設計容量</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>フル充電容量</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>公称フル充電容量</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln 回</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>セル電圧</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>セル電圧なし</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>このバッテリーはセルの情報を報告しません。</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>バッテリーからの報告</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>システム管理コントローラから読み取り</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>このMac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>毎秒1回</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>GPU電力</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>バッテリーのシリアル番号</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>総稼働時間</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>累積履歴</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1日%L2時間</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>バッテリー最高温度</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>バッテリー最低温度</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>バッテリー平均温度</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>パック最高電圧</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>パック最低電圧</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>最大充電電流</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>最大放電電流</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>安全保護の作動回数</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>バッテリー</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>充電残量</translation>
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
        <translation>履歴</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>履歴はオフです。</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>履歴は記録されていません：%1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>履歴はまだありません。Ferrow は 1 分ごとにエネルギーを記録します。</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow は %1 から履歴を記録しています</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>期間</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7日間</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30日間</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12か月</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>エネルギー</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>電源アダプタから</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>バッテリーから</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>この期間の記録はありません</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>最近のセッション</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>記録されたセッションはまだありません。</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>バッテリーの状態の推移</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>状態（%）</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>フル充電容量（mAh）</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>バッテリー駆動</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>電源アダプタ接続</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>バッテリー駆動 %1 · %2 使用</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>電源アダプタ接続 %1 · %2 供給</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>平均 %1 · ピーク %2</translation>
    </message>
    <message id="session.two_units">
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message id="session.minutes" numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln分</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln時間</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln日</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>エネルギー履歴を保存</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>エネルギー履歴をオフにしますか？</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow はこのコンピュータに保存したエネルギー履歴を削除します。この操作は取り消せません。</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>履歴を削除</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>このコンピュータは外部電源のみで動作します。</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>このコンピュータにはバッテリーがなく、すべての電力を電源から得ています。</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>このコンピュータ</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>利用できません</translation>
    </message>
    <message id="accessibility.reading">
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message id="accessibility.note">
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
    <message id="accessibility.watts">
        <source>%1 watts</source>
        <translation>%1 ワット</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1 ボルト</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1 アンペア</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>摂氏 %1 度</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln ミリアンペア時</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln ヘルツ</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>セル %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>アダプタ %1 からシステム %2 へ</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>バッテリー %1 からシステム %2 へ</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>アダプタ %1 からシステム %2 とバッテリー %3 へ</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>アダプタ %1 とバッテリー %2 からシステム %3 へ</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>充電器の電力不足</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>外部電源に接続されているのに、バッテリーが %1放電しています：アダプタ %2（%3、%4）、システム %5、バッテリー %6。</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>外部電源に接続されているのに、バッテリーが %1放電しています：システム %2、バッテリー %3。</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>充電速度の低下</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>USB-C 電源の供給が %1 のみのため、充電が遅くなっています：アダプタ %2、システム %3、バッテリー %4。</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>アダプタの供給が%1のシステムの平均消費電力を下回っているため、充電が遅くなっています：アダプタ %2、システム %3。</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>バッテリー高温</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>バッテリーが %1 で、上限の %2 以上です。</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>充電中にバッテリーが %1 以上の状態が %2続いています：現在 %3。</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>バッテリーセルの電圧不均衡</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>待機中のセル電圧の差が %1 を超えた状態が %2続いています：現在の差 %3（%4～%5）。</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>充電レベル到達</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>バッテリーが設定したレベルの %1 に達しました。</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>%Ln 分間</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>過去 %Ln 分間</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1ほか %Ln 件</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>アラート</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>各アラートは一度表示され、状態が続く間は最短でも%Ln分おきに繰り返されます。</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>充電中の上限</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>常時の上限</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>システム設定でFerrowの通知がオフになっています</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>アプリ</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>アプリ別エネルギー</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>このセッションの消費上位</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Ferrow 起動以降の消費エネルギー上位</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>このセッションではまだ測定値がありません</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>まだ何も計測されていません</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>期間</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>セッション</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7日間</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30日間</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>集計時間：%1</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>アプリ</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>エネルギー</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>平均電力</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>割合</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>CPU時間</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>CPU時間の割合</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>エネルギー順に並べ替え</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>平均電力順に並べ替え</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow（このアプリ）</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>起動以降</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>システムと他のユーザー</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>その他のアプリ</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>システムがアプリごとに測定</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>推定：プロセッサの測定エネルギーを各アプリのCPU時間で按分</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>推定：システムの測定電力のうちプロセッサ分をCPU時間で按分</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>CPU時間のみ：このコンピュータはエネルギーを測定しません</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 は推定値</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>推定</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>測定</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>この期間の記録はまだありません</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrowは履歴を保存していないため、リストは現在のセッションのみです。今後の日々を残すには、「履歴」で「エネルギー履歴を保存」をオンにしてください。</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>読み取り中…</translation>
    </message>
    <message id="apps.seconds" numerus="yes">
        <source>%Ln s</source>
        <translation>
            <numerusform>%Ln 秒</numerusform>
        </translation>
    </message>
    <message id="accessibility.percent">
        <source>%1 percent</source>
        <translation>%1 パーセント</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1 ワット時</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln ミリワット時</numerusform>
        </translation>
    </message>
</context>
</TS>
