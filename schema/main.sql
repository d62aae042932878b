-- The main database: payroll structure, runs and loans, and the suite's tables that they stand on.
-- Flags are -1 for true and 0 for false. A statement ends with a semicolon at the end of its line.

CREATE TABLE z_pay_com (
  com_id          smallint NOT NULL,
  com_kode        varchar(50),
  com_name        varchar(100),
  type            smallint,
  fluctuate       smallint,
  no_urut         smallint,
  param           smallint,
  disetahunkan    smallint,
  take_home_pay   smallint,
  cara_bayar      smallint,
  pinjaman        smallint,
  lastupdate_date datetime,
  lastupdate_user varchar(50),
  PRIMARY KEY (com_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE z_pay_grp (
  grp_id          smallint NOT NULL,
  kode_grp        varchar(50),
  grp_name        varchar(100),
  lastupdate_date datetime,
  lastupdate_user varchar(50),
  PRIMARY KEY (grp_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE z_pay_grp_com (
  com_id        smallint NOT NULL,
  grp_id        smallint NOT NULL,
  no_urut_ref   smallint NOT NULL,
  use_if_sum    smallint,
  min_if        double,
  use_kode_if   smallint,
  id_kode_if    smallint,
  max_if        double,
  use_sum       smallint,
  use_kode_sum  smallint,
  id_kode_sum   smallint,
  operator_sum  varchar(50),
  konstanta_sum double,
  operator_sum2 varchar(50),
  nilai_rp      double,
  hitung        smallint,
  jenis         smallint,
  PRIMARY KEY (com_id, grp_id, no_urut_ref),
  KEY grp_id (grp_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE z_pay_grp_emp (
  grp_id      smallint NOT NULL,
  emp_id_auto int NOT NULL,
  no_rek      varchar(50),
  PRIMARY KEY (grp_id, emp_id_auto),
  KEY emp_id_auto (emp_id_auto)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE z_pay_money (
  com_id          smallint NOT NULL,
  grp_id          smallint NOT NULL,
  emp_id_auto     int NOT NULL,
  nilai_rp        double,
  lastupdate_date datetime,
  lastupdate_user varchar(50),
  PRIMARY KEY (com_id, grp_id, emp_id_auto),
  KEY emp_id_auto (emp_id_auto)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE z_pay_report (
  id_kode_report smallint NOT NULL,
  report_code    varchar(50),
  report_name    varchar(200),
  PRIMARY KEY (id_kode_report)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE z_pay_process_m (
  process_id      int NOT NULL,
  process_name    varchar(250),
  date1           date,
  date2           date,
  round_value     double,
  payment_date    date,
  tot_process     double,
  create_by       varchar(100),
  check_by        varchar(100),
  approve_by      varchar(100),
  lastupdate_date datetime,
  lastupdate_user varchar(50),
  PRIMARY KEY (process_id),
  KEY date1 (date1)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- The line numbers are int: a run of a large company has more detail rows than a smallint can count.
CREATE TABLE z_pay_process_d (
  process_id  int NOT NULL,
  no_urut     int NOT NULL,
  emp_id_auto int,
  tot_payroll double,
  PRIMARY KEY (process_id, no_urut),
  KEY emp_id_auto (emp_id_auto)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE z_pay_process_sd (
  process_id     int NOT NULL,
  no_urut        int NOT NULL,
  no_urut_ref    int NOT NULL,
  emp_id_auto    int,
  com_id         smallint,
  subtot_payroll double,
  kondisi        varchar(100),
  rumus          varchar(100),
  jml_faktor     double,
  PRIMARY KEY (process_id, no_urut, no_urut_ref),
  KEY emp_id_auto (emp_id_auto)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE zx_jns_krd (
  krd_id          smallint NOT NULL,
  krd_kode        varchar(10),
  krd_name        varchar(100),
  com_id          smallint,
  lastupdate_date datetime,
  lastupdate_user varchar(50),
  PRIMARY KEY (krd_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE zx_kredit_m (
  id_kredit       int NOT NULL,
  no_kredit       varchar(100),
  tgl_kredit      date,
  emp_id_auto     int,
  krd_id          smallint,
  cara_hitung     smallint,
  tot_kredit      double,
  saldo_aw        double,
  suku_bunga      double,
  periode_bulan   smallint,
  angs_pokok      double,
  angs_pertama    date,
  tot_debet       double,
  tot_angs_pokok  double,
  tot_bunga       double,
  def_pembulatan  smallint,
  jumlah_piutang  double,
  approv_by       varchar(200),
  keterangan      varchar(1000),
  status          smallint NOT NULL DEFAULT 0,
  status_lunas    smallint NOT NULL DEFAULT 0,
  lastupdate_date datetime,
  lastupdate_user varchar(50),
  PRIMARY KEY (id_kredit),
  KEY emp_id_auto (emp_id_auto)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE zx_kredit_d (
  id_kredit    int NOT NULL,
  no_urut      smallint NOT NULL,
  tgl_jt       date,
  saldo_aw     double,
  debet        double,
  angs_pokok   double,
  bunga        double,
  saldo_akh    double,
  proses_bayar smallint,
  keterangan   varchar(300),
  PRIMARY KEY (id_kredit, no_urut),
  KEY tgl_jt (tgl_jt)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE zx_bayar_kredit (
  id_bayar        int NOT NULL,
  tgl_bayar       date,
  id_kredit       int,
  no_urut         smallint,
  tgl_jt          date,
  debet           double,
  angs_pokok      double,
  bunga           double,
  emp_id_auto     int,
  keterangan      varchar(300),
  status          smallint NOT NULL DEFAULT 0,
  lastupdate_date datetime,
  lastupdate_user varchar(50),
  PRIMARY KEY (id_bayar),
  KEY id_kredit (id_kredit, no_urut),
  KEY emp_id_auto (emp_id_auto, tgl_bayar)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE emp (
  emp_id_auto     int NOT NULL,
  nik             varchar(32),
  cab_id_auto     smallint,
  dept_id_auto    smallint,
  func_id_auto    smallint,
  first_name      varchar(100),
  last_name       varchar(100),
  gender          smallint,
  birth_date      date,
  religion        varchar(30),
  address         varchar(255),
  phone           varchar(50),
  ssn             varchar(30),
  married         smallint,
  is_spouse       smallint,
  education       varchar(30),
  dependent       smallint,
  pin             varchar(32),
  alias           varchar(30),
  photo_path      varchar(255),
  begin_date      date,
  resign_date     date,
  lastupdate_date datetime,
  lastupdate_user varchar(50),
  emp_status      smallint,
  priv            smallint,
  rfid            text,
  pwd             varchar(8),
  PRIMARY KEY (emp_id_auto),
  KEY pin (pin),
  KEY nik (nik),
  KEY cab_id_auto (cab_id_auto),
  KEY dept_id_auto (dept_id_auto),
  KEY func_id_auto (func_id_auto)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- dept_name is the whole path from the root, its steps separated by a backslash.
CREATE TABLE dept (
  dept_id_auto smallint NOT NULL,
  dept_name    varchar(1000),
  level_id     varchar(1000),
  PRIMARY KEY (dept_id_auto)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE cabang (
  cab_id_auto smallint NOT NULL,
  cab_name    varchar(100),
  PRIMARY KEY (cab_id_auto)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE func (
  func_id_auto smallint NOT NULL,
  func_name    varchar(100),
  PRIMARY KEY (func_id_auto)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE user_log (
  login_id varchar(50),
  log_date datetime,
  module   smallint,
  log_note varchar(300),
  KEY log_date (log_date)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE sum_report (
  sum_id smallint NOT NULL,
  sum_as smallint,
  PRIMARY KEY (sum_id)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

-- An employee may have several shifts on one date, and several day statuses: no unique keys here.
CREATE TABLE shift_result (
  emp_id_auto int NOT NULL,
  shift_date  date NOT NULL,
  valid       smallint,
  late        double,
  early       double,
  total_ot    double,
  duration    double,
  holiday     smallint,
  shift_ot    smallint,
  break1      double,
  max_break   double,
  break2      double,
  max_break2  double,
  KEY emp_date (emp_id_auto, shift_date)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE date_temp (
  emp_id_auto int NOT NULL,
  date_temp   date NOT NULL,
  absent_id   smallint,
  duration    double,
  holiday     smallint,
  KEY emp_date (emp_id_auto, date_temp)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE ex_absent (
  emp_id_auto int NOT NULL,
  tgl_awal    date NOT NULL,
  absent_id   smallint,
  sum_result  double,
  KEY emp_date (emp_id_auto, tgl_awal)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE holiday (
  holiday_date date NOT NULL,
  KEY holiday_date (holiday_date)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE free_ot (
  begin_time int NOT NULL,
  shift_ot   smallint,
  PRIMARY KEY (begin_time)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;

CREATE TABLE free_ot_result_m (
  emp_id_auto int NOT NULL,
  free_date   date NOT NULL,
  duration    double,
  duration_ot double,
  KEY emp_date (emp_id_auto, free_date)
) ENGINE=InnoDB DEFAULT CHARSET=utf8mb4 COLLATE=utf8mb4_general_ci;
